// SPDX-License-Identifier: MIT
#include "tests/shell/ui/all_windows.h"

#include "companions/ui/AdvisorWindow.h"
#include "companions/ui/RefreshWindow.h"
#include "companions/ui/TallyWindow.h"
#include "platform/desktop/FontDialog.h"
#include "powerbuttons/ui/dlgChoosePB.h"
#include "powerbuttons/ui/dlgEditIcon.h"
#include "powerbuttons/ui/dlgPickCharacter.h"
#include "powerbuttons/ui/dlgShareButton.h"
#include "powerbuttons/ui/dlgTakeButton.h"
#include "preferences/ui/ThirdPartiesWindow.h"
#include "preferences/ui/frmAbout.h"
#include "shell/ui/GoToLine.h"
#include "shell/ui/dlgConfirmClose.h"
#include "spelling/ui/UserDictionaryWindow.h"
#include "spelling/ui/dlgDicQuickList.h"
#include "spelling/ui/dlgHunspellLanguage.h"
#include "spelling/ui/dlgReadDicsProgress.h"
#include "spelling/ui/dlgSpellLanguage.h"
#include "tests/text/engine.h"
#include "text/ui/frmStats.h"
#include "text/ui/tool_dialogs.h"

#include <QTabBar>
#include <QTabWidget>

namespace tolvo {

namespace {

const QString someText = QStringLiteral("the first line, with a  mistke\nthe second line");

void settle() {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    QCoreApplication::processEvents();
}

void lookAt(QWidget &window, const std::string &name, const AllWindows::Act &act) {
    activate(window);
    auto *pages = window.findChild<QTabWidget *>();
    for (int page = 0; page < (pages ? pages->count() : 1); ++page) {
        if (pages)
            pages->setCurrentIndex(page);
        settle();
        act(window, pages ? name + ", " + pages->tabText(page).toStdString() : name);
    }
}

/// The modal dialog that a key of the main window opens.
void lookAtModal(QWidget &text, Qt::Key key, Qt::KeyboardModifiers held, const std::string &name,
                 const AllWindows::Act &act) {
    QTimer watch; // events may be handled before the dialog stands
    bool seen = false;
    QObject::connect(&watch, &QTimer::timeout, [&] {
        auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        if (dialog == nullptr)
            return;
        watch.stop();
        seen = true;
        lookAt(*dialog, name, act);
        dialog->reject();
    });
    watch.start(0);
    QTest::keyClick(&text, key, held);
    EXPECT_TRUE(seen) << name;
}

} // namespace

void AllWindows::inEachWindow(const Act &act) {
    set(store, settingKeys.powerButton.name, QStringLiteral("Own"), 2);
    set(store, settingKeys.powerButton.text, QStringLiteral("A"), 2);
    run(someText, [&] {
        mainWindow(act);
        ownDialogs(act);
        searchWindow(act);
        toolDialogs(act);
        editors(act);
        spellingWindows(act);
        companions(act);
        activate(*window());
        QTest::keyClick(text(), Qt::Key_D, Qt::AltModifier);
    });
}

void AllWindows::mainWindow(const Act &act) {
    activate(*window());
    QTest::keyClick(text(), Qt::Key_U, Qt::ControlModifier); // something to undo, and a status
    QTest::keyClick(text(), Qt::Key_A, Qt::ControlModifier);
    lookAt(*window(), "main window", act);
    auto &field = child<QWidget>(*window(), "txtFindTool");
    QTest::keyClick(text(), Qt::Key_P, Qt::ControlModifier);
    QTest::keyClicks(&field, QStringLiteral("line"));
    lookAt(*window(), "main window, finding", act);
    QTest::keyClick(&field, Qt::Key_Escape);
    text()->setFocus();
}

void AllWindows::ownDialogs(const Act &act) {
    lookAtModal(*text(), Qt::Key_O, Qt::ControlModifier, "Options", act);
    lookAtModal(*text(), Qt::Key_Question, Qt::ControlModifier, "sheet of keys", act);
    dlgConfirmClose confirm(window());
    withModal<QDialog>([&](QDialog &dialog) { lookAt(dialog, "question at the end", act); });
    static_cast<void>(confirm.MsgBox(QStringLiteral("The text has changed.")));
    GoToLine line(12, 3, window());
    lookAt(line, "Go to line", act);
    frmAbout about(processes, boxes, QDate(2020, 2, 20), window());
    lookAt(about, "About", act);
    ThirdPartiesWindow parties(processes, window());
    lookAt(parties, "Third-party software", act);
    const StatisticsRow words{
        .name = QStringLiteral("Words"), .fullText = QStringLiteral("12"), .selection = QStringLiteral("3")};
    frmStats statistics(boxes, {.rows = {words}, .hasSelection = true}, window());
    lookAt(statistics, "statistics", act);
    FontDialog font({.name = QStringLiteral("Arial"), .size = 10}, window());
    lookAt(font, "font", act);
}

void AllWindows::searchWindow(const Act &act) {
    QTest::keyClick(text(), Qt::Key_H, Qt::ControlModifier);
    auto &search = child<QDialog>(*window(), "frmSearch");
    auto &modes = child<QTabBar>(search, "TabStrip1");
    lookAt(search, "search", act);
    click(search, "cmdMore");
    for (int mode = 0; mode < modes.count(); ++mode) {
        modes.setCurrentIndex(mode);
        lookAt(search, "search with " + modes.tabText(mode).toStdString(), act);
    }
    QTest::keyClick(&search, Qt::Key_F, Qt::ControlModifier);
    click(search, "cmdCopyMatches");
    for (int mode = 0; mode < modes.count(); ++mode) {
        modes.setCurrentIndex(mode);
        lookAt(search, "copying matches, " + modes.tabText(mode).toStdString(), act);
    }
    search.close();
}

void AllWindows::toolDialogs(const Act &act) {
    test::KeptWords said;
    const cTextMethods engine(said, [](const QString &) { return false; });
    const ToolDialogContext context{engine, boxes, window()};
    forEachToolSettings([&](const auto &settings) {
        const auto dialog = makeToolDialog(settings, context);
        lookAt(*dialog, dialog->windowTitle().toStdString(), act);
    });
}

void AllWindows::editors(const Act &act) {
    lookAtModal(*text(), Qt::Key_F2, Qt::AltModifier | Qt::ShiftModifier, "PowerButton editor", act);
    QStringList recent{QStringLiteral("x")};
    dlgEditIcon icon(recent, window());
    lookAt(icon, "icon editor", act);
    dlgPickCharacter picker(QStringLiteral("DejaVu Sans"), recent, window());
    lookAt(picker, "character picker", act);
    CPowerButtonCollection buttons;
    for (int number = 1; number <= CPowerButtonCollection::buttonCount; ++number)
        buttons.Add(std::make_shared<CPowerButton>(), number);
    dlgChoosePB choose(buttons, window());
    lookAt(choose, "choice of a PowerButton", act);
    const auto shared = std::make_shared<CPowerButton>();
    shared->Name = QStringLiteral("Own");
    shared->Add(std::make_shared<CAction>(makeTool({}, QStringLiteral("ccUPP"), {}, false),
                                          SettingsFrom::Prompt, QString()));
    buttons.Add(shared, 2);
    dlgShareButton share(buttons, 2, window());
    lookAt(share, "sharing a PowerButton", act);
    const SharedButtons coming{{shared}, {}};
    dlgTakeButton take(coming, buttons, window());
    withModal<QDialog>([&](QDialog &dialog) { lookAt(dialog, "loading a PowerButton", act); });
    EXPECT_EQ(take.choosePlace(2), 0);
}

void AllWindows::spellingWindows(const Act &act) {
    activate(*window());
    text()->setFocus();
    lookAtModal(*text(), Qt::Key_F7, Qt::ShiftModifier, "spelling", act);
    EXPECT_EQ(boxes.said(), QStringLiteral("Spelling and grammar check complete"));
    dlgDicQuickList languages(spelling, window());
    lookAt(languages, "language", act);
    dlgHunspellLanguage locales(spelling, window());
    lookAt(locales, "languages of Hunspell", act);
    UserDictionaryWindow ownWords(spelling, QStringLiteral("en-gb"), window());
    lookAt(ownWords, "own words", act);
    dlgSpellLanguage dictionaries(spelling, window());
    lookAt(dictionaries, "languages of Word", act);
    dlgReadDicsProgress progress(window());
    lookAt(progress, "reading dictionaries", act);
}

void AllWindows::companions(const Act &act) {
    AdvisorWindow tips(store);
    lookAt(tips, "tips", act);
    store.SaveSetting(QStringLiteral("Tolvo-Stats"), QStringLiteral("TotUsage"), QStringLiteral("ccUPP"),
                      QStringLiteral("12"));
    TallyWindow tally(store, [](const QString &token) { return token; });
    lookAt(tally, "usage", act);
    RefreshWindow refresh;
    lookAt(refresh, "update", act);
}

} // namespace tolvo
