// SPDX-License-Identifier: MIT
// The windows of spelling as a user meets them.
#include "preferences/settings_keys.h"
#include "spelling/ui/MarkedTextView.h"
#include "spelling/ui/dlgDicQuickList.h"
#include "spelling/ui/dlgSpellLanguage.h"
#include "spelling/ui/dlgSpelling.h"
#include "tests/spelling/spelling_world.h"
#include "tests/ui/user.h"

#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTextBlock>
#include <QTreeWidget>

namespace tolvo::test {

QString mistake(QWidget &window) {
    return child<QLabel>(window, "labMistake").text();
}

class Dialogs : public SpellingWorld {
  public:
    /// A check of the text and its result: the text, or "(cancelled)".
    QString check(const char *text, const std::function<void(QDialog &)> &story) {
        QString corrected = u(text);
        withModal<QDialog>(story);
        return dialog.CheckSpelling(*this, corrected, -1, false) ? corrected : u("(cancelled)");
    }

    dlgSpelling dialog{services};
};

TEST_F(Dialogs, WalkThroughAText) {
    const QString result = check("teh fox\rhte dog, zqx zqx zqx  there helo xzj", [this](QDialog &window) {
        auto &correction = child<QLineEdit>(window, "txtCorrection");
        auto &text = child<QPlainTextEdit>(window, "rtbText");
        EXPECT_EQ(mistake(window), u("teh"));
        EXPECT_EQ(correction.text(), u("the"));
        EXPECT_TRUE(correction.hasFocus());
        EXPECT_FALSE(child<QAbstractButton>(window, "cmdUndo").isEnabled());
        EXPECT_FALSE(child<QAbstractButton>(window, "cmdDelete").isEnabled());
        QTest::keyClick(&correction, Qt::Key_Return); // the default button is Change
        EXPECT_EQ(mistake(window), u("hte"));
        EXPECT_EQ(text.toPlainText().left(11), u("the fox\nhte"));
        const QTextCharFormat mark = text.document()->findBlockByNumber(1).begin().fragment().charFormat();
        EXPECT_EQ(mark.fontWeight(), int(QFont::Bold));
        EXPECT_EQ(mark.foreground().color(), QColor(255, 0, 0));

        click(window, "cmdUndo");
        EXPECT_EQ(mistake(window), u("teh"));
        press(window, Qt::Key_I, Qt::AltModifier); // Ignore
        EXPECT_EQ(mistake(window), u("hte"));
        auto &list = child<QListWidget>(window, "lstSuggestions");
        const QPoint row = list.visualItemRect(list.item(0)).center();
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, row);
        QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, row);
        EXPECT_EQ(mistake(window), u("zqx"));
        EXPECT_FALSE(child<QAbstractButton>(window, "cmdChange").isEnabled());
        click(window, "cmdIgnore");
        EXPECT_TRUE(child<QAbstractButton>(window, "cmdDelete").isEnabled());
        click(window, "cmdDelete");
        click(window, "cmdDelete");
        EXPECT_EQ(mistake(window), u("helo"));
        click(window, "cmdAddToDic");
        EXPECT_EQ(mistake(window), u("xzj"));
        click(window, "cmdExplain");
        click(window, "cmdHelp");
        EXPECT_EQ(said(), QStringList(u("Help is not implemented yet")));
        type(window, "txtCorrection", u("is"));
        click(window, "cmdChangeAll");
        EXPECT_FALSE(window.isVisible());
    });
    EXPECT_EQ(result, u("teh fox\rthe dog, zqx there helo is"));
    EXPECT_EQ(fileContents(dictionaries() + u("/persdict.dat")), "helo\r\n");
}

TEST_F(Dialogs, EndInStopOrCancel) {
    const char *text = "teh fox hte dog";
    const std::pair<std::function<void(QDialog &)>, const char *> ends[] = {
        {[](QDialog &w) { click(w, "cmdStop"); }, "the fox hte dog"},
        {[](QDialog &w) { click(w, "cmdCancel"); }, "(cancelled)"},
        {[this](QDialog &w) {
             boxes.answers = {BoxAnswer::No, BoxAnswer::Yes};
             QTest::keyClick(&w, Qt::Key_Escape);
             EXPECT_TRUE(w.isVisible());
             QTest::keyClick(&w, Qt::Key_Escape);
         },
         "(cancelled)"},
        {[this](QDialog &w) {
             boxes.answers = {BoxAnswer::Yes};
             w.close();
         },
         "(cancelled)"},
    };
    for (const auto &row : ends) {
        const QString left = check(text, [&end = row.first](QDialog &w) {
            click(w, "cmdChange");
            end(w);
            EXPECT_FALSE(w.isVisible());
        });
        EXPECT_EQ(left, u(row.second));
    }
    EXPECT_EQ(said().size(), 3);
}

TEST_F(Dialogs, TakeEnterForWhatIsNext) {
    const QString result = check("teh zqx zqx fox xzj", [](QDialog &window) {
        auto &correction = child<QLineEdit>(window, "txtCorrection");
        const auto enter = [&](const char *button, const char *next) {
            EXPECT_TRUE(child<QPushButton>(window, button).isDefault()) << button;
            QTest::keyClick(&correction, Qt::Key_Return);
            EXPECT_EQ(mistake(window), u(next)) << button;
        };
        enter("cmdChange", "zqx");
        EXPECT_EQ(child<QLabel>(window, "labPlace").text(), u("2 of 4, line 1"));
        EXPECT_EQ(correction.accessibleDescription(),
                  u("Not in dictionary: zqx, (No spelling suggestions), 2 of 4, line 1"));
        enter("cmdIgnore", "zqx"); // no suggestions
        enter("cmdDelete", "xzj"); // repeated
        click(window, "cmdAddForRun");
    });
    EXPECT_EQ(result, u("the zqx fox xzj"));
    EXPECT_EQ(check("teh xzj",
                    [](QDialog &window) {
                        EXPECT_EQ(child<QLabel>(window, "labPlace").text(), u("1 of 1, line 1"));
                        click(window, "cmdStop");
                    }),
              u("teh xzj"));
}

TEST_F(Dialogs, ReportAFailureAndGoOn) {
    service(error("fox", "grammar", "a", {"dog"}));
    const QString result = check("a fox a teh", [this](QDialog &window) {
        http.reply = {503, u("Busy"), {}};
        click(window, "cmdChange");
        EXPECT_EQ(said(), QStringList(u("5012 Busy (dlgSpelling::cmdChange)")));
        EXPECT_EQ(mistake(window), u("fox"));
        http.reply = {0, {}, {}, true}; // Esc
        click(window, "cmdChange");
        EXPECT_EQ(mistake(window), u("fox"));
        http.reply = {0, u("gone"), {}};
        click(window, "cmdChange"); // no answer counts as no error
        EXPECT_EQ(said().join(u'/'),
                  u("5007 After the Deadline did not respond. Please try again later' (CSpelling::Spell)"));
    });
    EXPECT_EQ(result, u("a dog a teh"));
}

TEST_F(Dialogs, AreUsedWithTheKeyboardAlone) {
    const auto focus = [] { return QApplication::focusWidget()->objectName(); };
    const QString result = check("teh zqx zqx fox", [&](QDialog &window) {
        const auto key = [](Qt::Key code) { QTest::keyClick(QApplication::focusWidget(), code); };
        QStringList order;
        for (int i = 0; i < 16; ++i, key(Qt::Key_Tab))
            order += focus();
        EXPECT_EQ(order.join(u' '),
                  u("txtCorrection lstSuggestions chkSmartReplace cmdIgnore cmdIgnoreAll cmdAddToDic "
                    "cmdAddForRun cmdChange cmdChangeAll cmdExplain cmdHelp cmdStop cmdCancel rtbText "
                    "txtCorrection "
                    "lstSuggestions"));
        child<QWidget>(window, "cmdChange").setFocus();
        key(Qt::Key_Space);
        EXPECT_EQ(mistake(window), u("zqx")); // nothing to change it to
        EXPECT_EQ(focus(), u("txtCorrection"));
        key(Qt::Key_Down); // into no list
        EXPECT_EQ(focus(), u("txtCorrection"));
        key(Qt::Key_Space);
        EXPECT_EQ(mistake(window), u("zqx"));
        child<QWidget>(window, "cmdIgnore").setFocus();
        key(Qt::Key_Space);
        child<QWidget>(window, "cmdDelete").setFocus();
        key(Qt::Key_Return); // a button with the focus is the one that Enter presses
    });
    EXPECT_EQ(result, u("the zqx fox"));
}

TEST_F(Dialogs, OpenMoreSuggestionsByEnter) {
    service(error("teh", "spelling", "a", {"then"}));
    const QString result = check("a teh", [](QDialog &window) {
        auto &correction = child<QLineEdit>(window, "txtCorrection");
        auto &list = child<QListWidget>(window, "lstSuggestions");
        EXPECT_EQ(correction.text(), u("then"));
        QTest::keyClick(&correction, Qt::Key_Down);
        EXPECT_TRUE(list.hasFocus());
        EXPECT_EQ(list.currentRow(), 0);
        QTest::keyClick(&list, Qt::Key_Up);
        EXPECT_TRUE(correction.hasFocus());
        list.setFocus();
        QTest::keyClick(&list, Qt::Key_End);
        EXPECT_EQ(list.currentItem()->text(), u("<More...>"));
        EXPECT_EQ(correction.text(), u("then"));
        QTest::keyClick(&list, Qt::Key_Return);
        EXPECT_TRUE(window.isVisible());
        EXPECT_EQ(list.currentItem()->text(), u("the"));
        EXPECT_EQ(correction.text(), u("the"));
        QTest::keyClick(&list, Qt::Key_Return); // Change
    });
    EXPECT_EQ(result, u("a the"));
    EXPECT_EQ(said(), QStringList(u("5007 Text 'teh' cannot be found (CSpelling::findThePlace)")));
}

TEST_F(Dialogs, MarkReadablyOnADarkBackground) {
    MarkedTextView view;
    QPalette palette;
    palette.setColor(QPalette::Base, Qt::white);
    view.setPalette(palette);
    MarkedText text(u("\r\u2028 \u2029a teh fox"));
    text.mark(6, 3, Mark::Mistake);
    view.showText(text, 6);
    EXPECT_EQ(view.textCursor().position(), 6);
    const auto colour = [&view] {
        QTextCursor cursor(view.document());
        cursor.setPosition(8);
        return cursor.charFormat().foreground().color();
    };
    EXPECT_EQ(colour(), QColor(255, 0, 0));
    palette.setColor(QPalette::Base, QColor(0x20, 0x20, 0x20));
    view.setPalette(palette);
    EXPECT_GT(colour().lightness(), 160);
    EXPECT_GT(colour().red(), colour().green());
}

TEST_F(Dialogs, StartOnHunspellsLocaleUntilALanguageIsChosen) {
    setProvider(1);
    writeFile(services.dataFolder + u("/Locales.txt"), "h\nh\nen-gb\tx\tEnglish\t2057\n");
    set(store, settingKeys.spelling.hunLangList, u("English|en-gb#German|de-de#Klingon|tlh"));
    set(store, settingKeys.spelling.hunLocale, u("de-de"));
    dlgDicQuickList dialogList(services);
    const auto startsOn = [&](int LangID) {
        QString row;
        withModal<QDialog>([&row](QDialog &window) {
            row = child<QComboBox>(window, "cmbQuickList").currentText();
            click(window, "CancelButton");
        });
        (void)dialogList.GetLangID(LangID, false);
        return row;
    };
    EXPECT_EQ(startsOn(-1), u("German - de-de"));
    EXPECT_EQ(startsOn(2057), u("English - en-gb"));
}

TEST_F(Dialogs, AskForTheLanguage) {
    dlgDicQuickList dialogList(services);
    setProvider(0);
    LanguageList lists(store);
    lists.saveWordLanguages(u("MS Word Default|<Default>|-1#German|Deutsch|1031"));
    lists.saveWordQuickList({u("-1"), u("1031")});
    const auto choose = [](int row) {
        withModal<QDialog>([row](QDialog &window) {
            child<QComboBox>(window, "cmbQuickList").setCurrentIndex(row);
            click(window, "OKButton");
        });
    };
    choose(1);
    EXPECT_EQ(dialogList.GetLangID(-2, true), 1031);
    EXPECT_EQ(lists.storedLangID(), 1031);
    withModal<QDialog>([](QDialog &window) {
        EXPECT_EQ(child<QLabel>(window, "labProvider").text(), u("Provider: Microsoft Word"));
        EXPECT_EQ(child<QComboBox>(window, "cmbQuickList").currentText(), u("German - Deutsch"));
        click(window, "CancelButton");
    });
    EXPECT_EQ(dialogList.GetLangID(-2, true), -2);

    QString settings = u("LangID=1031");
    choose(0);
    EXPECT_TRUE(dialogList.getSettings(settings));
    EXPECT_EQ(settings, u("LangID=-1"));
    EXPECT_EQ(lists.storedLangID(), 1031);

    setProvider(1);
    withModal<QDialog>([](QDialog &window) {
        withModal<QDialog>([](QDialog &list) {
            EXPECT_EQ(child<QTreeWidget>(list, "lvwHunspellLangs").topLevelItem(0)->text(1),
                      u("English (UK)"));
            click(list, "cmdOK");
        });
        click(window, "imgBrowse");
        click(window, "OKButton");
    });
    EXPECT_NE(dialogList.GetLangID(-2, false), -2);

    store.SaveSetting(u("Tolvo"), u("Spelling"), u("LangID"), u("none")); // counts as the default
    withModal<QDialog>([](QDialog &window) {
        withModal<QDialog>([](QDialog &list) { list.reject(); });
        child<QWidget>(window, "imgBrowse").setFocus();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        EXPECT_TRUE(window.isVisible());
        click(window, "OKButton");
    });
    EXPECT_EQ(dialogList.GetLangID(-2, false), -1);
}

TEST_F(Dialogs, ManageWordsLanguages) {
    dlgSpellLanguage window(services);
    withModal<QDialog>([](QDialog &list) {
        withModal<QDialog>([](QDialog &progress) {
            click(progress, "cmdNext");
            EXPECT_FALSE(child<QAbstractButton>(progress, "cmdCancel").isEnabled());
            click(progress, "cmdFinish");
        });
        click(list, "cmdUpdate");
        auto &rows = child<QTreeWidget>(list, "lvwDictionaries");
        ASSERT_EQ(rows.topLevelItemCount(), 3);
        EXPECT_EQ(rows.topLevelItem(0)->checkState(0), Qt::Checked);
        QTest::keyClicks(&child<QLineEdit>(list, "txtFind"), u("ger"));
        EXPECT_EQ(rows.currentItem()->text(1), u("Deutsch"));
        rows.currentItem()->setCheckState(0, Qt::Checked);
        click(list, "chkUseWordSpellingDialog");
        click(list, "cmdOK");
    });
    EXPECT_TRUE(window.DictionaryQuickList());
    EXPECT_EQ(LanguageList(store).wordQuickList(), QStringList({u("-1"), u("1031")}));
    EXPECT_FALSE(LanguageList(store).useWordDialog());
}

} // namespace tolvo::test
