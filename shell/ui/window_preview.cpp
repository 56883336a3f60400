// SPDX-License-Identifier: MIT
#include "shell/ui/window_preview.h"

#include "base/failure.h"
#include "preferences/settings_keys.h"
#include "shell/frmMain.h"
#include "shell/tool_preview.h"
#include "shell/ui/change_view.h"

namespace tolvo {

bool WindowPreview::isWanted() const {
    return get(m_session.services().store, settingKeys.preview.inText);
}

void WindowPreview::setWanted(bool wanted) {
    m_session.guarded(u"setWanted",
                      [&] { set(m_session.services().store, settingKeys.preview.inText, wanted); });
}

void WindowPreview::show(const ToolSettings &settings) {
    std::optional<TextState> after;
    try {
        after = textAfterTool(m_row, settings, m_session.oTextMethods, m_session.txtCurrent());
    } catch (const Failure &) {
        // The tool itself will say so, if the user keeps these settings.
    }
    if (!after) {
        end();
        return;
    }
    after->selLength = 0; // it would hide the tint
    m_changes.showInstead(*after, QStringLiteral("Preview"));
}

void WindowPreview::end() {
    m_changes.endInstead();
}

} // namespace tolvo
