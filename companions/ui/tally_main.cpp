// SPDX-License-Identifier: MIT
// Tally.exe: what was counted. Tools go by their names in the catalogue, or by their tokens without one. A
// second one that is started while the first is open raises that and ends.
#include "base/failure.h"
#include "base/paths.h"
#include "companions/ui/TallyWindow.h"
#include "companions/ui/single_window.h"
#include "platform/headless/help_text.h"
#include "platform/program_folders.h"
#include "powerbuttons/catalogue.h"
#include "preferences/settings_store.h"
#include "widgets/dress_application.h"

#include <QApplication>

namespace {

const QString help = QStringLiteral(R"(Usage: Tally.exe
Shows how often each tool and PowerButton of Tolvo has been used. A second one that is started while the first is open
raises its window and ends.

  -h, --help  print this text
  --version   print the version
)");

tolvo::Catalogue catalogueIn(const QString &folder) {
    try {
        return tolvo::Catalogue::read(tolvo::sAppPath(folder) + tolvo::Catalogue::fileName);
    } catch (const tolvo::Failure &) {
        return {};
    }
}

} // namespace

int main(int argc, char **argv) {
    if (tolvo::answersForHelp(argc, argv, QStringLiteral("Tally.exe"), help))
        return 0;
    const QApplication application(argc, argv);
    tolvo::dressApplication();
    const QString path = tolvo::SettingsStore::defaultPath();
    tolvo::SingleWindow single(path + QStringLiteral(".tally"));
    if (!single.isFirst())
        return 0;
    const tolvo::Catalogue catalogue = catalogueIn(tolvo::programFolders().data);
    const tolvo::SettingsStore store(path);
    tolvo::TallyWindow window(store, [&](const QString &token) {
        const tolvo::ToolPtr tool = catalogue.tool(token);
        QString name = tool ? tool->Name() : token;
        while (name.endsWith(u'.')) // "Search..." opens a dialog; here it is only a name
            name.chop(1);
        return name;
    });
    single.onSecond = [&window] { window.comeBack(); };
    window.show();
    return QApplication::exec();
}
