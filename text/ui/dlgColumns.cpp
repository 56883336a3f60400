// SPDX-License-Identifier: MIT
#include "text/column_choice.h"
#include "text/ui/FieldDialog.h"
#include "text/ui/tool_dialogs.h"

namespace tolvo {

SettingsDialogPtr<ColumnSettings> makeToolDialog(const ColumnSettings &settings,
                                                 const ToolDialogContext &context) {
    const QList<FieldLook> looks = {{QStringLiteral("Co&lumns, such as 3,1 or 2-4:")},
                                    {QStringLiteral("&Drop these columns and keep the others")}};
    return std::make_unique<FieldDialog<ColumnSettings>>(
        QStringLiteral("dlgColumns"), QStringLiteral("Choose Columns"), looks, SampleLook{5},
        [](const ColumnSettings &now) {
            return chosenColumns(QStringLiteral("drink, cups, price, when\r\ntea, 2, 4.50, morning\r\n"
                                                "milk, 1, 0.80, noon"),
                                 now);
        },
        settings, context);
}

} // namespace tolvo
