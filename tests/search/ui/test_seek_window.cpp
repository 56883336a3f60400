// SPDX-License-Identifier: MIT
// What the search window offers beside searching and replacing.
#include "preferences/settings_keys.h"
#include "tests/search/ui/search_window_world.h"

#include <QClipboard>
#include <QLabel>
#include <QListView>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <QToolButton>

namespace tolvo::test {
namespace {

class SeekWindow : public SearchWindow {
  protected:
    void SetUp() override {
        SearchWindow::SetUp();
        window->onCopyMatches = [this](const MatchCopy &copy) { copies += settingsString(copy); };
    }
    QString folded() { return find<QLabel>("labFolded").text(); }

    QStringList copies;
};

TEST_F(SeekWindow, CopiesMatchesByKeys) {
    open(false);
    type("o(.)e");
    press(Qt::Key_PageDown, Qt::ControlModifier);
    press(Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_FALSE(visible("cmbForm"));
    alt(Qt::Key_Y);
    EXPECT_TRUE(visible("cmbForm") && !visible("cmbReplaceText") && copies.isEmpty());
    press(Qt::Key_Return);
    alt(Qt::Key_R);
    type("<$1>");
    alt(Qt::Key_G);
    EXPECT_TRUE(find<QComboBox>("cmbForm").hasFocus());
    alt(Qt::Key_Y);
    const QString request = QStringLiteral("Mode=3, Find=o(.)e, MatchCase=0, Direction=U, WholeWords=0, ");
    EXPECT_EQ(copies, QStringList({request + "Form=, InPlace=0", request + "Form=<$1>, InPlace=1"}));
    EXPECT_TRUE(get(store, settingKeys.matchCopy.inPlace));
    press(Qt::Key_H, Qt::ControlModifier);
    EXPECT_TRUE(!visible("cmbForm") && visible("cmdReplace") && !visible("cmdCopyMatches"));
    window->saveState();
    reopen();
    window->showCopyMatches();
    EXPECT_EQ(find<QComboBox>("cmbForm").currentText(), "<$1>");
    EXPECT_TRUE(find<QRadioButton>("optInPlace").isChecked());
}

TEST_F(SeekWindow, CollectsTheSettingsOfACopy) {
    QString settings = "Mode=1, Find=x, Direction=S, Form=<$&>, InPlace=1";
    QTimer::singleShot(0, window.get(), [this] {
        activate(*window);
        EXPECT_TRUE(find<QRadioButton>("optInPlace").isChecked());
        EXPECT_TRUE(visible("cmdOK") && !visible("cmdCopyMatches") && !visible("cmdSearch"));
        find<QComboBox>("cmbForm").setEditText("$&, ");
        click("cmdOK");
        EXPECT_TRUE(said().endsWith("Please check \"Allow special characters\" and write ,\\x20 instead"));
        EXPECT_TRUE(find<QComboBox>("cmbForm").hasFocus() && visible("chkSpecialChars"));
        type("$&,");
        click("cmdOK");
    });
    EXPECT_TRUE(window->getSettings(settings, SearchRole::CopyMatches));
    EXPECT_EQ(settings, "Mode=1, Find=x, MatchCase=0, Direction=S, WholeWords=0, SpecialChars=0, Form=$&,, "
                        "InPlace=1");
    // The user's own copy is another one.
    window->showCopyMatches();
    EXPECT_EQ(find<QComboBox>("cmbForm").currentText(), "");
    EXPECT_TRUE(find<QRadioButton>("optToClipboard").isChecked());
}

TEST_F(SeekWindow, GoesFromTheListToTheText) {
    show("«»one two One");
    open(false);
    window->setSearchText("o(n|\\n)");
    find<QTabBar>("TabStrip1").setCurrentIndex(2);
    int chosen = 0;
    resultsWindow.onHit = [&chosen](QWidget &) { ++chosen; };
    withModal<QDialog>([&, this](QDialog &shown) {
        auto &listed = child<QListView>(shown, "lstResults");
        QTest::keyClick(&listed, Qt::Key_C, Qt::ControlModifier);
        EXPECT_EQ(QApplication::clipboard()->text(), "Line 1: one two One\nLine 1: one two One");
        QTest::keyClick(&listed, Qt::Key_Down);
        QTest::keyClick(&listed, Qt::Key_Down);
        EXPECT_EQ(picture(), "one two «On»e");
        QTest::keyClick(&listed, Qt::Key_Up);
        EXPECT_TRUE(shown.isVisible());
        QTest::keyClick(&listed, Qt::Key_Return);
        EXPECT_TRUE(!shown.isVisible() && shown.result() == QDialog::Accepted);
    });
    click("cmdReplaceAll");
    EXPECT_EQ(picture(), "«on»e two One");
    EXPECT_EQ(chosen, 4);
}

TEST_F(SeekWindow, InsertsElements) {
    open(true);
    const auto choose = [this](const char *button, const QString &element) {
        QMenu &menu = *find<QToolButton>(button).menu();
        emit menu.aboutToShow();
        for (QAction *action : menu.actions()) {
            if (action->text().startsWith(element))
                return action->trigger();
        }
        ADD_FAILURE() << element.toStdString() << " is not offered";
    };
    type("ab");
    press(Qt::Key_Left);
    choose("cmbSearchTextElements", "Allow special");
    EXPECT_TRUE(find<QAbstractButton>("chkSpecialChars").isChecked());
    choose("cmbSearchTextElements", "\\t");
    EXPECT_EQ(window->request().find, "a\\tb");
    find<QTabBar>("TabStrip1").setCurrentIndex(2);
    choose("cmbSearchTextElements", "()");
    type("x");
    EXPECT_EQ(window->request().find, "a\\t(x)b");
    choose("cmbReplaceTextElements", "$&&"); // as menus write it
    EXPECT_EQ(window->request().replace, "$&");
}

TEST_F(SeekWindow, SaysInWhichModeAnEntryWasUsed) {
    set(store, settingKeys.search.recentFinds, {"two", "o?e", "Older"});
    set(store, settingKeys.search.modesOfTexts, {"", "3two", "9Older", "2o?e"});
    reopen();
    const auto words = [this] {
        QComboBox &history = find<QComboBox>("cmbSearchText");
        QStringList all;
        for (int i = 0; i < history.count(); ++i)
            all += history.itemText(i) + u'/' + history.itemData(i, Qt::UserRole + 1).toString();
        return all.join(u' ').toStdString();
    };
    EXPECT_EQ(words(), "two/Regular Expression o?e/Wildcard Search Older/");
    open(false);
    find<QTabBar>("TabStrip1").setCurrentIndex(0);
    press(Qt::Key_F3);
    EXPECT_EQ(said(), "Text not found");
    EXPECT_EQ(words(), "two/Simple Search o?e/Wildcard Search Older/");
    window->saveState();
    EXPECT_EQ(get(store, settingKeys.search.modesOfTexts), QStringList({"1two", "9Older", "2o?e"}));
}

TEST_F(SeekWindow, NamesTheOptionsThatAreFoldedAway) {
    struct Row {
        const char *settings;
        bool replace;
        const char *folded;
    };
    const Row rows[] = {
        {"Mode=1, MatchCase=0, WholeWords=0", false, ""},
        {"Mode=1, MatchCase=1, WholeWords=1", false, "Match case, whole words"},
        {"Mode=1, MatchCase=0, WholeWords=1, SmartReplace=1", true, "Whole words, smart replace"},
        {"Mode=3, MatchCase=1, WholeWords=1, SpecialChars=1, SmartReplace=0", true, "Match case"},
        {"Mode=2, MatchCase=0, WholeWords=0, SpecialChars=1, Anchor=2, DecimalSep=.", false,
         "Special characters, at start of line"},
        {"Mode=2, SpecialChars=0, Anchor=4, DecimalSep=,", false, "Other separators in numbers"},
    };
    for (const Row &row : rows) {
        QString settings = QString::fromLatin1(row.settings);
        QTimer::singleShot(0, window.get(), [this] { press(Qt::Key_Return); });
        EXPECT_TRUE(window->getSettings(settings, row.replace));
        open(row.replace);
        EXPECT_EQ(folded(), row.folded) << row.settings;
        window->expandDialog();
        EXPECT_EQ(folded(), "");
        alt(Qt::Key_V);
    }
}

} // namespace
} // namespace tolvo::test
