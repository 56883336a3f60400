// SPDX-License-Identifier: MIT
#include "shell/ui/desktop_options.h"

#include "base/paths.h"
#include "platform/check_for_updates.h"
#include "platform/report_error.h"
#include "preferences/settings_exchange.h"
#include "shell/apply_options.h"

namespace tolvo {

namespace {
const QString ownName = QStringLiteral("dlgPreferences");
}

void DesktopOptions::apply(const ProgramOptions &options) {
    reportFailures(m_services.boxes, ownName, QStringLiteral("cmdApply_Click"),
                   [&] { applyOptions(m_session, options); });
}

bool DesktopOptions::isSystemExtension(const QString &extension) const {
    return m_services.extensions.isSystemExtension(extension);
}

void DesktopOptions::checkNow() {
    runCheckForUpdates(m_services.processes, m_services.boxes, m_services.programFolder, true, false, true,
                       true);
}

void DesktopOptions::viewStatistics() {
    reportFailures(m_services.boxes, ownName, QStringLiteral("cmdViewStats_Click"), [&] {
        m_services.processes.start(sAppPath(m_services.programFolder) + QStringLiteral("Tally.exe"), {},
                                   WindowMode::Hidden);
    });
}

void DesktopOptions::exportPrefs(const QString &file, bool powerButtonsOnly) {
    reportFailures(m_services.boxes, ownName, QStringLiteral("ExportPrefs"), [&] {
        exportSettings(m_services.store,
                       powerButtonsOnly ? ExportScope::PowerButtons : ExportScope::Everything, file);
    });
}

void DesktopOptions::importPrefs(const QString &file) {
    reportFailures(m_services.boxes, ownName, QStringLiteral("ExportPrefs"), [&] {
        importSettings(m_services.store, file);
        m_session.refreshPowerButtons();
    });
}

} // namespace tolvo
