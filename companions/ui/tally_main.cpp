// SPDX-License-Identifier: MIT
// Tally.exe: what was counted. Tools go by their names in the catalogue, or by their tokens without one.
#include "base/failure.h"
#include "base/paths.h"
#include "companions/ui/TallyWindow.h"
#include "platform/icons/themed_icon.h"
#include "powerbuttons/catalogue.h"
#include "preferences/settings_store.h"

#include <QApplication>

namespace {

tolvo::Catalogue catalogueBeside(const QString &folder) {
    try {
        return tolvo::Catalogue::read(tolvo::sAppPath(folder) + QStringLiteral("Tools.dat"));
    } catch (const tolvo::Failure &) {
        return {};
    }
}

} // namespace

int main(int argc, char **argv) {
    const QApplication application(argc, argv);
    tolvo::makeHintsReadable();
    const tolvo::Catalogue catalogue = catalogueBeside(QApplication::applicationDirPath());
    const tolvo::SettingsStore store(tolvo::SettingsStore::defaultPath());
    tolvo::TallyWindow window(store, [&](const QString &token) {
        const tolvo::ToolPtr tool = catalogue.tool(token);
        QString name = tool ? tool->Name() : token;
        while (name.endsWith(u'.')) // "Search..." opens a dialog; here it is only a name
            name.chop(1);
        return name;
    });
    window.show();
    return QApplication::exec();
}
