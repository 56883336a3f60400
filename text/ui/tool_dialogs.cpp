// SPDX-License-Identifier: MIT
#include "text/ui/tool_dialogs.h"

#include "text/ui/preview_tick.h"

namespace tolvo {

bool askInToolDialog(ToolSettings &settings, const ToolDialogContext &context) {
    return std::visit(
        [&context](auto &values) {
            const auto dialog = makeToolDialog(values, context);
            if (context.preview)
                addPreviewTick(*dialog, *context.preview, [&] { return ToolSettings(dialog->settings()); });
            if (!dialog->ShowMe())
                return false;
            values = dialog->settings();
            return true;
        },
        settings);
}

std::optional<QString> editInToolDialog(const ToolSettings &lastUsed, const QString &details,
                                        const ToolDialogContext &context) {
    return std::visit(
        [&](const auto &values) -> std::optional<QString> {
            QString edited = details;
            if (!makeToolDialog(values, context)->getSettings(edited))
                return std::nullopt;
            return edited;
        },
        lastUsed);
}

} // namespace tolvo
