// SPDX-License-Identifier: MIT
// The search window as its user meets it: by keys, by mouse, and as a form that others fill.
#include "preferences/settings_keys.h"
#include "tests/search/ui/search_window_world.h"

#include <QCheckBox>
#include <QClipboard>
#include <QLabel>
#include <QListView>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>

namespace tolvo::test {
namespace {

TEST_F(SearchWindow, GivesTheBoxItsSelectionBack) {
    open(true);
    type("one");
    alt(Qt::Key_F);
    press(Qt::Key_Return);
    EXPECT_EQ(picture(), "«one» two One");
    EXPECT_TRUE(find<QRadioButton>("optSrchDown").isChecked());
    QLineEdit &edit = *find<QComboBox>("cmbSearchText").lineEdit();
    for (const auto key : {Qt::Key_Return, Qt::Key_F3, Qt::Key_N, Qt::Key_R, Qt::Key_A}) {
        edit.setSelection(1, 2);
        press(key, key == Qt::Key_Return || key == Qt::Key_F3 ? Qt::NoModifier : Qt::AltModifier);
        EXPECT_EQ(edit.selectedText(), "ne") << key;
        EXPECT_TRUE(find<QComboBox>("cmbSearchText").hasFocus()) << key;
        // A click takes the focus, and with it the selection, for as long as it lasts.
        edit.setSelection(0, 2);
        QTest::mouseClick(&find<QWidget>("chkMatchCase"), Qt::LeftButton, {}, QPoint(8, 8));
        click("optSrchDown");
        EXPECT_EQ(edit.selectedText(), "on") << key;
    }
    EXPECT_EQ(said(), "Text not found/Text not found/Text not found/2 strings replaced");
    for (const Qt::Key key : {Qt::Key_F, Qt::Key_H}) {
        press(key, Qt::ControlModifier);
        EXPECT_EQ(visible("cmdReplace"), key == Qt::Key_H);
        EXPECT_EQ(edit.selectedText(), "one");
    }
}

TEST_F(SearchWindow, TakesLineEndsAsEscapes) {
    const std::tuple<int, const char *, const char *, const char *, int, bool> rows[] = {
        {0, "", "a\nb", "a\\nb", 4, true},
        {0, "xy", "a\r\n\tb\r\n", "xa\\n\\tb\\ny", 9, true},
        {0, "xy", "\ta", "x\tay", 3, false},
        {2, "xy", "\n", "x\\ny", 3, false},
    };
    open(true);
    QLineEdit &edit = *find<QComboBox>("cmbSearchText").lineEdit();
    for (const auto &[tab, text, pasted, shown, caret, specialChars] : rows) {
        window->setSpecialChars(false);
        find<QTabBar>("TabStrip1").setCurrentIndex(tab);
        edit.setText(text);
        edit.setCursorPosition(1);
        QApplication::clipboard()->setText(pasted);
        press(Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(edit.text(), QString(shown));
        EXPECT_EQ(edit.cursorPosition(), caret);
        EXPECT_EQ(window->request().specialChars, specialChars);
    }
    edit.undo();
    EXPECT_EQ(edit.text(), "xy");
}

TEST_F(SearchWindow, MouseAndOptions) {
    open(false);
    for (const char *name : {"cmdReplace", "imgSwop", "cmdOK", "cmdCancel", "chkMatchCase", "picMoreArrowUp"})
        EXPECT_FALSE(visible(name)) << name;
    EXPECT_FALSE(find<QWidget>("cmbReplaceText").isEnabled());
    // One key for both layouts; Alt-M opens the larger one and is the key of Match Case in it.
    alt(Qt::Key_V);
    EXPECT_TRUE(visible("chkMatchCase"));
    alt(Qt::Key_V);
    EXPECT_FALSE(visible("chkMatchCase"));
    for (const bool checked : {false, true}) {
        alt(Qt::Key_M);
        EXPECT_TRUE(visible("chkMatchCase"));
        EXPECT_EQ(find<QCheckBox>("chkMatchCase").isChecked(), checked);
    }
    alt(Qt::Key_V);
    click("picMoreArrowDown");
    EXPECT_TRUE(visible("picMoreArrowUp") && visible("cmdTab") && !visible("fraWildcards"));
    EXPECT_FALSE(find<QWidget>("cmdTab").isEnabled());
    const QSize simple = window->size();
    find<QTabBar>("TabStrip1").setCurrentIndex(1);
    EXPECT_TRUE(visible("fraWildcards") && visible("labWildcardHelp"));
    EXPECT_GT(window->height(), simple.height());
    click("chkWholeWord");
    click("optWildcardOptions1");
    EXPECT_FALSE(find<QCheckBox>("chkWholeWord").isChecked());
    click("chkWholeWord");
    EXPECT_TRUE(find<QRadioButton>("optWildcardOptions4").isChecked());
    find<QTabBar>("TabStrip1").setCurrentIndex(2);
    EXPECT_FALSE(visible("chkSpecialChars") || find<QWidget>("chkWholeWord").isEnabled());
    EXPECT_LT(window->height(), simple.height());

    // Special characters go in where the caret was, in place of what was selected.
    find<QTabBar>("TabStrip1").setCurrentIndex(0);
    QLineEdit &edit = *find<QComboBox>("cmbSearchText").lineEdit();
    edit.setFocus();
    type("abcd");
    edit.setSelection(1, 2);
    click("chkSpecialChars");
    QTest::mouseClick(&find<QWidget>("cmdHex"), Qt::LeftButton);
    EXPECT_EQ(edit.text(), "a\\xd");
    EXPECT_EQ(edit.cursorPosition(), 3);
    EXPECT_TRUE(find<QComboBox>("cmbSearchText").hasFocus());
}

TEST_F(SearchWindow, ConvertsWildcardsAndSwops) {
    open(true);
    window->setSearchText("t.o");
    find<QComboBox>("cmbReplaceText").setEditText("$1");
    QTest::keyClick(window.get(), Qt::Key_R, Qt::ControlModifier | Qt::ShiftModifier | Qt::AltModifier);
    EXPECT_EQ(window->request().find, "t.o"); // not on this tab
    find<QTabBar>("TabStrip1").setCurrentIndex(1);
    QTest::keyClick(window.get(), Qt::Key_R, Qt::ControlModifier | Qt::ShiftModifier | Qt::AltModifier);
    EXPECT_EQ(window->request().find, "t(.)o");
    EXPECT_EQ(find<QTabBar>("TabStrip1").currentIndex(), 2);
    click("cmdReplaceAll");
    EXPECT_EQ(said(), "1 string replaced");
    EXPECT_EQ(picture(), "«»one w One");
    click("imgSwop");
    EXPECT_EQ(window->request().find, "$1");
    EXPECT_EQ(find<QComboBox>("cmbReplaceText").currentText(), "t(.)o");
}

TEST_F(SearchWindow, ListsHitsAndKeepsThemAfterASearchInVain) {
    open(false);
    find<QTabBar>("TabStrip1").setCurrentIndex(2);
    const auto chooses = [this](const char *title, bool isOld, const char *seen) {
        withModal<QDialog>([=, this](QDialog &shown) {
            EXPECT_EQ(shown.windowTitle(), title);
            auto &listed = child<QListView>(shown, "lstResults");
            EXPECT_EQ(listed.isEnabled() && listed.hasFocus(), !isOld);
            EXPECT_EQ(listed.model()->index(1, 0).data().toString(), "Line 1: one two One");
            QTest::keyClick(&listed, Qt::Key_Down);
            EXPECT_EQ(picture(), seen);
        });
        click("cmdReplaceAll");
    };
    window->setSearchText("one");
    chooses("2 results found for one", false, "«one» two One");
    window->setSearchText("nowhere");
    show("«»short");
    chooses("0 results found for nowhere", true, "«»short");
}

TEST_F(SearchWindow, RemembersItsStateAndItsLists) {
    for (int i = 0; i < 25; ++i) {
        window->setSearchText(QString::number(i % 23));
        find<QComboBox>("cmbReplaceText").setEditText(QString::number(i));
        window->cmdSearch_Click();
        EXPECT_EQ(said(), "Text not found");
    }
    EXPECT_EQ(find<QComboBox>("cmbSearchText").count(), 23);
    EXPECT_EQ(find<QComboBox>("cmbSearchText").itemText(2), "22");
    window->setSearchText("");
    window->cmdSearch_Click();
    find<QTabBar>("TabStrip1").setCurrentIndex(1);
    click("optWildcardOptions2");
    find<QComboBox>("cmbThousandsSep").setEditText("space");
    window->expandDialog();
    window->saveState();
    EXPECT_EQ(get(store, settingKeys.search.recentFinds).size(), 20);
    reopen();
    EXPECT_EQ(window->request().find, "1");
    QString settings;
    QTimer::singleShot(0, window.get(), [this] { click("cmdOK"); });
    EXPECT_TRUE(window->getSettings(settings, true));
    EXPECT_EQ(settings, "Mode=2, Find=1, MatchCase=0, Direction=U, WholeWords=0, SpecialChars=0, Replace=24, "
                        "SmartReplace=1, ReplaceAll=0, Anchor=2, DecimalSep=., GroupingSep=space");
}

TEST_F(SearchWindow, CollectsSettings) {
    QString settings = "Mode=3, Find=a=b, c, MatchCase=1, Direction=S, Replace=x, ReplaceAll=1";
    const QString given = settings;
    QTimer::singleShot(0, window.get(), [this] {
        EXPECT_EQ(window->request().find, "a=b");
        EXPECT_TRUE(visible("cmdOK") && !visible("cmdSearch") && window->isModal());
        // "Replace All" is there, and so is what else is on.
        EXPECT_TRUE(visible("chkReplaceAll") && find<QCheckBox>("chkReplaceAll").isChecked());
        EXPECT_TRUE(visible("chkMatchCase"));
        press(Qt::Key_H, Qt::ControlModifier);
        press(Qt::Key_F3);
        EXPECT_TRUE(visible("cmdOK") && !visible("cmdSearch"));
        press(Qt::Key_Escape);
    });
    EXPECT_FALSE(window->getSettings(settings, true));
    EXPECT_EQ(settings, given);
    QTimer::singleShot(0, window.get(), [this] {
        click("optSrchUp");
        press(Qt::Key_Return);
    });
    EXPECT_TRUE(window->getSettings(settings, true));
    EXPECT_EQ(settings,
              "Mode=3, Find=a=b, MatchCase=1, Direction=U, WholeWords=0, Replace=x, SmartReplace=1, "
              "ReplaceAll=1");
    settings = "Find=q";
    QTimer::singleShot(0, window.get(), [this] { click("cmdOK"); });
    EXPECT_TRUE(window->getSettings(settings, false));
    EXPECT_EQ(settings, "Mode=1, Find=q, MatchCase=1, Direction=U, WholeWords=0, SpecialChars=0");
    open(false);
    EXPECT_TRUE(visible("cmdSearch") && !visible("cmdOK") && !window->isModal());
    EXPECT_FALSE(visible("chkReplaceAll") || visible("chkMatchCase"));
}

TEST_F(SearchWindow, SaysWhatSettingsCannotHold) {
    const QString refusal =
        "A comma followed by a space can't be stored in the settings of an Action.\r\n\r\n";
    const QString otherwise = refusal + "Please write ,\\x20 instead";
    const QString special = refusal + "Please check \"Allow special characters\" and write ,\\x20 instead";
    struct Row {
        const char *settings, *list, *typed;
        QString message;
    };
    const Row rows[] = {
        {"Mode=1, SpecialChars=0", "cmbSearchText", "a, MatchCase=1", special},
        {"Mode=2, SpecialChars=1", "cmbSearchText", "a, b", otherwise},
        {"Mode=3", "cmbSearchText", ", ", otherwise},
        {"Mode=1, SpecialChars=0", "cmbReplaceText", ", ", special},
        {"Mode=2, SpecialChars=0", "cmbReplaceText", ", ", otherwise},
        {"Mode=2", "cmbThousandsSep", ", ", refusal + "Please enter another separator"},
    };
    for (const Row &row : rows) {
        QString settings = QString::fromLatin1(row.settings) + ", Find=x, Replace=y, GroupingSep=.";
        QTimer::singleShot(0, window.get(), [&, this] {
            activate(*window);
            find<QComboBox>(row.list).setEditText(row.typed);
            click("cmdOK");
            EXPECT_TRUE(window->isVisible());
            EXPECT_EQ(said(), row.message);
            EXPECT_TRUE(find<QComboBox>(row.list).hasFocus());
            EXPECT_TRUE(row.message != special || visible("chkSpecialChars"));
            type(",\\x20"); // in place of all of it
            click("cmdOK");
        });
        EXPECT_TRUE(window->getSettings(settings, true));
        EXPECT_TRUE(settings.contains("=,\\x20, ") || settings.endsWith("=,\\x20")) << row.typed;
    }
}

TEST_F(SearchWindow, SurvivesAnOddStore) {
    const QString tree = QStringLiteral("Tolvo");
    for (int i = 0; i < 1000; ++i)
        store.SaveSetting(tree, "Search\\SearchMRU", QString(QChar(u'a' + i)), QString::number(i));
    for (const char *key : {"!", "word", "\xEF\xBF\xBD", "b"})
        store.SaveSetting(tree, "Search\\ReplaceMRU", QString::fromUtf8(key), "odd");
    for (const char *key : {"Tab", "Anchor", "Direction", "More"})
        store.SaveSetting(tree, "Search", QString::fromLatin1(key), "99");
    store.SaveSetting(tree, "Search", "AllowSpecial", "1");
    store.SaveSetting(tree, "Search", "More", "False");
    reopen();
    EXPECT_EQ(find<QComboBox>("cmbSearchText").currentText(), "0");
    QStringList replaces;
    for (int i = 0; i < find<QComboBox>("cmbReplaceText").count(); ++i)
        replaces += find<QComboBox>("cmbReplaceText").itemText(i);
    EXPECT_EQ(replaces, QStringList({"-", "odd", "-", "-"}));
    EXPECT_EQ(find<QTabBar>("TabStrip1").currentIndex(), 0);
    EXPECT_TRUE(find<QRadioButton>("optWildcardOptions4").isChecked());
    EXPECT_EQ(find<QPushButton>("cmdMore").text(), "Less     ");
}

} // namespace
} // namespace tolvo::test
