// SPDX-License-Identifier: MIT
// The windows of spelling as a user meets them. With TOLVO_PICTURES set to a folder, each story leaves
// pictures of its windows there.
#include "../spelling_world.h"
#include "spelling/ui/MarkedTextView.h"
#include "spelling/ui/dlgDicQuickList.h"
#include "spelling/ui/dlgSpellLanguage.h"
#include "spelling/ui/dlgSpelling.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QTest>
#include <QTextBlock>
#include <QTimer>
#include <QTreeWidget>

namespace tolvo::test {

class Dialogs : public SpellingWorld {
  public:
    /// Runs `story` as soon as a modal window is open.
    static void whenOpen(const std::function<void(QWidget &)> &story) {
        QTimer::singleShot(0, [story] {
            QWidget *window = QApplication::activeModalWidget();
            ASSERT_NE(window, nullptr);
            ASSERT_TRUE(QTest::qWaitForWindowActive(window));
            story(*window);
            // A story that went wrong must not leave its window open for ever.
            if (window == QApplication::activeModalWidget())
                static_cast<QDialog *>(window)->reject();
        });
    }
    template <class Widget>
    static Widget &find(QWidget &window, const char *name) {
        auto *widget = window.findChild<Widget *>(QLatin1String(name));
        if (!widget)
            throw std::runtime_error(std::string("no control ") + name);
        return *widget;
    }
    static void press(QWidget &window, const char *name) {
        auto &button = find<QAbstractButton>(window, name);
        EXPECT_TRUE(button.isEnabled()) << name;
        QTest::mouseClick(&button, Qt::LeftButton);
    }
    static void keepPicture(QWidget &window, const char *name) {
        const QString pictures = qEnvironmentVariable("TOLVO_PICTURES");
        if (!pictures.isEmpty())
            window.grab().save(pictures + u'/' + u(name) + u(".png"));
    }
    static QString mistake(QWidget &window) { return find<QLabel>(window, "labMistake").text(); }

    /// A check of the text, told by its result: the text, or "(cancelled)".
    QString check(const char *text, const std::function<void(QWidget &)> &story) {
        QString corrected = u(text);
        whenOpen(story);
        return dialog.CheckSpelling(*this, corrected, -1, false) ? corrected : u("(cancelled)");
    }

    dlgSpelling dialog{services};
};

TEST_F(Dialogs, WalkThroughAText) {
    const QString result = check("teh fox\rhte dog, zqx zqx zqx  there helo xzj", [this](QWidget &window) {
        auto &correction = find<QLineEdit>(window, "txtCorrection");
        auto &text = find<QPlainTextEdit>(window, "rtbText");
        EXPECT_EQ(window.windowTitle(), u("Spelling and Grammar - "));
        EXPECT_EQ(mistake(window), u("teh"));
        EXPECT_EQ(correction.text(), u("the"));
        EXPECT_TRUE(correction.hasFocus());
        EXPECT_FALSE(find<QAbstractButton>(window, "cmdUndo").isEnabled());
        EXPECT_FALSE(find<QAbstractButton>(window, "cmdDelete").isEnabled());
        QTest::keyClick(&correction, Qt::Key_Return); // the default button is Change
        EXPECT_EQ(mistake(window), u("hte"));
        EXPECT_EQ(text.toPlainText().left(11), u("the fox\nhte"));
        const QTextCharFormat mark = text.document()->findBlockByNumber(1).begin().fragment().charFormat();
        EXPECT_EQ(mark.fontWeight(), int(QFont::Bold));
        EXPECT_EQ(mark.foreground().color(), QColor(255, 0, 0));
        keepPicture(window, "dlgSpelling");

        press(window, "cmdUndo");
        EXPECT_EQ(mistake(window), u("teh"));
        QTest::keyClick(&window, Qt::Key_I, Qt::AltModifier); // Ignore
        EXPECT_TRUE(QTest::qWaitFor([&] { return mistake(window) == u("hte"); }));
        auto &list = find<QListWidget>(window, "lstSuggestions");
        const QPoint row = list.visualItemRect(list.item(0)).center();
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, row);
        QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, row);
        EXPECT_EQ(mistake(window), u("zqx"));
        EXPECT_FALSE(find<QAbstractButton>(window, "cmdChange").isEnabled());
        press(window, "cmdIgnore");
        EXPECT_TRUE(find<QAbstractButton>(window, "cmdDelete").isEnabled());
        keepPicture(window, "dlgSpelling-repeated");
        press(window, "cmdDelete");
        press(window, "cmdDelete");
        EXPECT_EQ(mistake(window), u("helo"));
        press(window, "cmdAddToDic");
        EXPECT_EQ(mistake(window), u("xzj"));
        press(window, "cmdExplain");
        press(window, "cmdHelp");
        EXPECT_EQ(said(), QStringList(u("Help is not implemented yet")));
        correction.selectAll();
        QTest::keyClicks(&correction, u("is"));
        press(window, "cmdChangeAll");
        EXPECT_FALSE(window.isVisible())
            << said().join(u("/")).toStdString()
            << find<QPlainTextEdit>(window, "rtbText").toPlainText().left(400).toStdString()
            << find<QPlainTextEdit>(window, "rtbText").textCursor().position()
            << mistake(window).toStdString() << find<QLineEdit>(window, "txtCorrection").text().toStdString();
    });
    EXPECT_EQ(result, u("teh fox\rthe dog, zqx there helo is"));
    EXPECT_EQ(fileContents(dictionaries() + u("/persdict.dat")), "helo\r\n");
}

TEST_F(Dialogs, EndInStopOrCancel) {
    const char *text = "teh fox hte dog";
    const auto changeThen = [](const std::function<void(QWidget &)> &end) {
        return [end](QWidget &window) {
            press(window, "cmdChange");
            end(window);
            EXPECT_FALSE(window.isVisible());
        };
    };
    EXPECT_EQ(check(text, changeThen([](QWidget &w) { press(w, "cmdStop"); })), u("the fox hte dog"));
    EXPECT_EQ(check(text, changeThen([](QWidget &w) { press(w, "cmdCancel"); })), u("(cancelled)"));
    EXPECT_EQ(check(text, changeThen([](QWidget &w) { QTest::keyClick(&w, Qt::Key_Escape); })),
              u("(cancelled)"));
    EXPECT_EQ(check(text, changeThen([](QWidget &w) { w.close(); })), u("(cancelled)"));
    EXPECT_EQ(check(text,
                    [](QWidget &w) {
                        press(w, "cmdIgnoreAll");
                        EXPECT_EQ(mistake(w), u("hte"));
                        press(w, "cmdStop");
                    }),
              u("teh fox hte dog"));
}

TEST_F(Dialogs, ReportAFailureAndGoOn) {
    setProvider(2);
    services.atdEndpoint = u("http://service");
    http.reply = {200, u("OK"),
                  "<r><error><string>fox</string><type>grammar</type><description>An animal, said once too "
                  "often</description><precontext>a</precontext><suggestions><option>dog</option>"
                  "</suggestions></error></r>"};
    EXPECT_EQ(check("a fox",
                    [this](QWidget &window) {
                        keepPicture(window, "dlgSpelling-grammar");
                        http.reply = {503, u("Busy"), {}};
                        press(window, "cmdChange");
                        EXPECT_EQ(said(), QStringList(u("5012 Busy (dlgSpelling::cmdChange)")));
                        EXPECT_EQ(mistake(window), u("fox"));
                        press(window, "cmdStop");
                    }),
              u("a fox"));
}

TEST_F(Dialogs, WalkALongTextWithARealDictionary) {
    for (const char *name : {"/en_GB.aff", "/en_GB.dic"})
        QFile::remove(dictionaries() + u(name)); // the system's is next
    if (!findDictionary(u("en-gb"), dictionaryFolders(services.programFolder)))
        GTEST_SKIP() << "no British dictionary on this system";
    const QString text = u("He has recieved the seperate parcels, Recieved teh rest later.\r").repeated(1000);
    const QString result = check(text.toUtf8().constData(), [](QWidget &window) {
        EXPECT_EQ(mistake(window), u("recieved"));
        EXPECT_EQ(find<QLineEdit>(window, "txtCorrection").text(), u("received"));
        find<QAbstractButton>(window, "chkSmartReplace").click();
        press(window, "cmdChangeAll");
        EXPECT_EQ(mistake(window), u("seperate"));
        press(window, "cmdIgnoreAll");
        EXPECT_EQ(mistake(window), u("teh"));
        auto &correction = find<QLineEdit>(window, "txtCorrection");
        correction.selectAll();
        QTest::keyClicks(&correction, u("the"));
        for (int change = 0; change < 3; ++change) {
            press(window, "cmdChange");
            EXPECT_EQ(mistake(window), u("teh"));
            correction.setText(u("the"));
        }
        keepPicture(window, "dlgSpelling-real");
        press(window, "cmdUndo"); // the last change was one that the walk made by itself
        EXPECT_EQ(mistake(window), u("Recieved"));
        press(window, "cmdIgnore");
        correction.setText(u("the"));
        press(window, "cmdChangeAll");
        EXPECT_FALSE(window.isVisible());
    });
    QString expected = text;
    expected.replace(u("recieved"), u("received")).replace(u("Recieved"), u("Received"));
    expected.replace(u("teh"), u("the"));
    expected.replace(expected.indexOf(u("Received"), 3 * expected.indexOf(u'\r')), 8, u("Recieved"));
    EXPECT_TRUE(result == expected) << result.left(300).toStdString();
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

TEST_F(Dialogs, AskForTheLanguage) {
    dlgDicQuickList dialogList(services);
    setProvider(0);
    LanguageList lists(store);
    lists.saveWordLanguages(u("MS Word Default|<Default>|-1#German|Deutsch|1031"));
    lists.saveWordQuickList({u("-1"), u("1031")});
    const auto choose = [](int row) {
        whenOpen([row](QWidget &window) {
            find<QComboBox>(window, "cmbQuickList").setCurrentIndex(row);
            press(window, "OKButton");
        });
    };
    choose(1);
    EXPECT_EQ(dialogList.GetLangID(-2, true), 1031);
    EXPECT_EQ(lists.storedLangID(), 1031);
    whenOpen([](QWidget &window) {
        EXPECT_EQ(window.windowTitle(), u("Select dictionary"));
        EXPECT_EQ(find<QLabel>(window, "labProvider").text(), u("Provider: Microsoft Word"));
        EXPECT_EQ(find<QComboBox>(window, "cmbQuickList").currentText(), u("German - Deutsch"));
        keepPicture(window, "dlgDicQuickList");
        press(window, "CancelButton");
    });
    EXPECT_EQ(dialogList.GetLangID(-2, true), -2);

    QString settings = u("LangID=1031");
    choose(0);
    EXPECT_TRUE(dialogList.getSettings(settings));
    EXPECT_EQ(settings, u("LangID=-1"));
    whenOpen([](QWidget &window) { QTest::keyClick(&window, Qt::Key_Escape); });
    EXPECT_FALSE(dialogList.getSettings(settings));
    EXPECT_EQ(settings, u("LangID=-1"));
    EXPECT_EQ(lists.storedLangID(), 1031);

    setProvider(1);
    whenOpen([](QWidget &window) {
        EXPECT_EQ(find<QLabel>(window, "labProvider").text(), u("Provider: Hunspell"));
        EXPECT_EQ(find<QComboBox>(window, "cmbQuickList").currentText(), u("English (GB) - en-gb"));
        whenOpen([](QWidget &list) {
            EXPECT_EQ(find<QTreeWidget>(list, "lvwHunspellLangs").topLevelItem(0)->text(1),
                      u("English (UK)"));
            keepPicture(list, "dlgHunspellLanguage");
            press(list, "cmdOK");
        });
        press(window, "imgBrowse");
        press(window, "OKButton");
    });
    EXPECT_NE(dialogList.GetLangID(-2, false), -2);
}

TEST_F(Dialogs, ManageWordsLanguages) {
    dlgSpellLanguage window(services);
    whenOpen([](QWidget &list) {
        whenOpen([](QWidget &progress) {
            keepPicture(progress, "dlgReadDicsProgress");
            press(progress, "cmdNext");
            EXPECT_FALSE(find<QAbstractButton>(progress, "cmdCancel").isEnabled());
            press(progress, "cmdFinish");
        });
        press(list, "cmdUpdate");
        auto &rows = find<QTreeWidget>(list, "lvwDictionaries");
        ASSERT_EQ(rows.topLevelItemCount(), 3);
        EXPECT_EQ(rows.topLevelItem(0)->checkState(0), Qt::Checked);
        QTest::keyClicks(&find<QLineEdit>(list, "txtFind"), u("ger"));
        EXPECT_EQ(rows.currentItem()->text(1), u("Deutsch"));
        rows.currentItem()->setCheckState(0, Qt::Checked);
        press(list, "chkUseWordSpellingDialog");
        keepPicture(list, "dlgSpellLanguage");
        press(list, "cmdOK");
    });
    EXPECT_TRUE(window.DictionaryQuickList());
    EXPECT_EQ(LanguageList(store).wordQuickList(), QStringList({u("-1"), u("1031")}));
    EXPECT_FALSE(LanguageList(store).useWordDialog());
}

TEST_F(Dialogs, TellWhyWordsLanguagesCannotBeRead) {
    dlgSpellLanguage window(services);
    word.failing = u("create");
    EXPECT_FALSE(window.doGetDicListFromWord([] { return false; }));
    EXPECT_EQ(said(), QStringList(u("Word refused\r\nPlease close Tolvo and try again")));
    word.installed = false;
    EXPECT_FALSE(window.doGetDicListFromWord([] { return false; }));
    EXPECT_EQ(said(), QStringList(u("Microsoft Word must be installed to check spelling and grammar")));
}

} // namespace tolvo::test
