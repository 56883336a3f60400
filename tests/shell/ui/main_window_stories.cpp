// SPDX-License-Identifier: MIT
// The main window offscreen: its size, its panel, its keys.
#include "base/application.h"
#include "platform/desktop/DesktopClipboard.h"
#include "platform/desktop/EscapeWatch.h"
#include "platform/desktop/PlainTextBox.h"
#include "platform/headless/ConsoleBoxes.h"
#include "platform/headless/SilentSound.h"
#include "platform/network/NetworkHttpClient.h"
#include "preferences/settings_keys.h"
#include "shell/ui/desktop_session.h"
#include "shell/ui/window_size.h"
#include "spelling/word_automation.h"
#include "tests/support/recording_processes.h"
#include "tests/ui/user.h"

#include <QAction>
#include <QClipboard>
#include <QLabel>
#include <QMenu>
#include <QPlainTextEdit>
#include <QScreen>
#include <QTemporaryDir>
#include <QTextDocumentFragment>

using namespace tolvo;

namespace {

TEST(WindowSize, isKeptAboveItsSmallest) {
    EXPECT_EQ(allowedOuterSize({8024, 5324}), QSize(8025, 5325));
    EXPECT_EQ(allowedOuterSize({9000, 5000}), QSize(9000, 5325));
    struct Row {
        QPoint pointer;
        std::optional<QSize> size;
    };
    // The handle stands at 7800, 4700 and is 240 high, which only the height takes in.
    const Row rows[] = {
        {{105, 25}, QSize(7905, 4965)}, {{104, 25}, {}}, {{105, 24}, {}}, {{400, 400}, QSize(8200, 5340)}};
    for (const Row &row : rows)
        EXPECT_EQ(draggedOuterSize({7800, 4700}, 240, row.pointer), row.size) << row.pointer.x();
}

/// One whole run of the program, with a user who acts once the window is there.
class MainWindowStory : public testing::Test {
  protected:
    void run(const QString &clipboardText, const std::function<void()> &user) {
        QGuiApplication::setQuitOnLastWindowClosed(false);
        set(store, settingKeys.preferences.showTips, false);
        QApplication::clipboard()->setText(clipboardText);
        const RunServices services{store, clipboard,  boxes,    sound,   processes,
                                   clock, extensions, programs, spelling};
        modMain program(services,
                        [&] { return std::make_unique<DesktopSession>(services, clipboard, escape); });
        QTimer::singleShot(0, &escape, [&] {
            user();
            if (QWidget *left = window(); left && left->isVisible()) {
                ADD_FAILURE() << "the user forgot to close";
                QTest::keyClick(text(), Qt::Key_D, Qt::AltModifier);
            }
        });
        EXPECT_EQ(program.Main(), 0);
    }
    static QWidget *window() {
        for (QWidget *top : QApplication::topLevelWidgets()) {
            if (top->objectName() == QLatin1StringView("frmMain"))
                return top;
        }
        return nullptr;
    }
    static QPlainTextEdit *text() {
        auto &plain = child<QPlainTextEdit>(*window(), "txtText1");
        return plain.isVisible() ? &plain : &child<QPlainTextEdit>(*window(), "txtTextWW");
    }
    static QString status() { return child<QLabel>(*window(), "labStatus").text(); }
    static QString pasted() { return QApplication::clipboard()->text(); }

    const QString programs = QString::fromLocal8Bit(qgetenv("TOLVO_BIN"));
    QTemporaryDir folder;
    const QString storeFile = folder.filePath(QStringLiteral("settings.sqlite"));
    SettingsStore store{storeFile};
    DesktopClipboard clipboard;
    RecordingBoxes boxes;
    SilentSound sound;
    test::RecordingProcesses processes;
    Clock clock;
    FileExtensions extensions;
    EscapeWatch escape;
    NetworkHttpClient http;
    NoWordAutomation word;
    SpellingServices spelling{store, boxes, http, word, programs, programs};
};

TEST_F(MainWindowStory, aCategoryOpensAndItsToolRuns) {
    run(QStringLiteral("one\ntwo"), [] {
        click(*window(), "lblToolbox_1"); // returns when the rows have slid out
        EXPECT_EQ(child<QWidget>(*window(), "lblToolbox_2").accessibleName(), QStringLiteral("UPPER CASE"));
        click(*window(), "lblToolbox_2");
        EXPECT_EQ(status(), QStringLiteral("8 characters: upper case"));
        EXPECT_TRUE(child<QWidget>(*window(), "cmdUndo").isEnabled());
        click(*window(), "cmdClose");
    });
    EXPECT_EQ(pasted(), QStringLiteral("ONE\nTWO"));
    EXPECT_EQ(sound.waves.size(), 1); // scrbar.wav as the rows slid out
    EXPECT_EQ(sound.beeps, 1);
}

TEST_F(MainWindowStory, theWindowFitsOnTheScreen) {
    run(QString(), [] {
        const QSize screen = window()->screen()->availableSize();
        EXPECT_LE(window()->width(), screen.width());
        EXPECT_LT(window()->height(), screen.height());
        click(*window(), "cmdClose");
    });
}

TEST_F(MainWindowStory, keysReachTheTextInBothBoxes) {
    run(QStringLiteral("abc"), [] {
        QTest::keyClick(text(), Qt::Key_U, Qt::ControlModifier);
        QTest::keyClick(text(), Qt::Key_W, Qt::AltModifier);
        EXPECT_EQ(text()->objectName(), QStringLiteral("txtTextWW"));
        EXPECT_EQ(status(), QStringLiteral("Word wrap now ON"));
        QTest::keyClick(text(), Qt::Key_U, Qt::ControlModifier);
        QTest::keyClicks(text(), QStringLiteral("-"));
        QTest::keyClick(text(), Qt::Key_D, Qt::AltModifier);
    });
    EXPECT_EQ(pasted(), QStringLiteral("AB-c"));
    EXPECT_TRUE(get(store, settingKeys.preferences.wordWrap));
}

TEST_F(MainWindowStory, aPowerButtonOfAnotherRunShowsAtOnce) {
    run(QStringLiteral("x"), [this] {
        SettingsStore other(storeFile);
        auto &third = child<QWidget>(*window(), "imgPower_2");
        set(other, settingKeys.action.token, QStringLiteral("ccUPP"), 3, QStringLiteral("1"));
        set(other, settingKeys.powerButton.name, QStringLiteral("Shout"), 3);
        EXPECT_TRUE(QTest::qWaitFor([&third] { return third.toolTip().startsWith(u"Shout"); }));
        QTest::keyClick(text(), Qt::Key_F3, Qt::AltModifier);
        QTest::keyClick(text(), Qt::Key_D, Qt::AltModifier);
    });
    EXPECT_EQ(pasted(), QStringLiteral("X"));
}

TEST_F(MainWindowStory, typingIsTakenBackAndBroughtBackByKeysButtonsAndMenu) {
    run(QStringLiteral("abc"), [] {
        const auto menu = [](const char *item) {
            const auto shown = static_cast<PlainTextBox *>(text())->contextMenu();
            for (QAction *action : shown->actions()) {
                if (action->text().startsWith(QLatin1StringView(item)))
                    return action->trigger();
            }
            ADD_FAILURE() << item;
        };
        const auto sees = [](const char16_t *expected, int caret) {
            EXPECT_EQ(text()->toPlainText(), QString::fromUtf16(expected));
            EXPECT_EQ(text()->textCursor().position(), caret);
        };
        const auto &redo = child<QWidget>(*window(), "cmdRedo");
        QTest::keyClicks(text(), QStringLiteral("one two"));
        EXPECT_FALSE(redo.isEnabled());
        QTest::keyClick(text(), Qt::Key_Z, Qt::ControlModifier);
        sees(u"one abc", 4);
        EXPECT_TRUE(redo.isEnabled());
        menu("&Undo");
        sees(u"abc", 0);
        QTest::keyClick(text(), Qt::Key_W, Qt::AltModifier); // both boxes share one history
        click(*window(), "cmdRedo");
        sees(u"one abc", 4);
        menu("&Redo");
        sees(u"one twoabc", 7);
        click(*window(), "cmdUndo");
        sees(u"abc", 0);
        QTest::keyClick(text(), Qt::Key_D, Qt::AltModifier);
    });
    EXPECT_EQ(pasted(), QStringLiteral("abc"));
}

TEST_F(MainWindowStory, theRightButtonRunsAToolWithItsLastSettings) {
    store.SaveSetting(applicationTitle(), QStringLiteral("Indent"), QStringLiteral("Option"),
                      QStringLiteral("Spaces"));
    run(QStringLiteral("x"), [] {
        QTest::mouseClick(&child<QWidget>(*window(), "imgFavourites_0"), Qt::RightButton);
        EXPECT_EQ(status(), QStringLiteral("Indent increased"));
        QTest::keyClick(text(), Qt::Key_D, Qt::AltModifier);
    });
    EXPECT_EQ(pasted(), QStringLiteral("    x"));
}

TEST_F(MainWindowStory, aPowerButtonRunsByEnterAndShowsItsNameAsTyped) {
    const QString section = QStringLiteral("PowerButtons\\Button 1");
    store.SaveSetting(QStringLiteral("Tolvo"), section, QStringLiteral("Name"), QStringLiteral("<b>Loud"));
    store.SaveSetting(QStringLiteral("Tolvo"), section + QStringLiteral("\\Action 1"),
                      QStringLiteral("Token"), QStringLiteral("ccUPP"));
    store.SaveSetting(QStringLiteral("Tolvo"), section + QStringLiteral("\\Action 1"),
                      QStringLiteral("DlgOption"), QStringLiteral("0"));
    run(QStringLiteral("x"), [] {
        auto &button = child<QWidget>(*window(), "imgPower_0");
        EXPECT_EQ(QTextDocumentFragment::fromHtml(button.toolTip()).toPlainText(),
                  QStringLiteral("<b>Loud (Alt-F1)\nor Ctrl-1"));
        EXPECT_TRUE(Qt::mightBeRichText(button.toolTip()));
        button.setFocus();
        QTest::keyClick(&button, Qt::Key_Return);
        EXPECT_EQ(text()->toPlainText(), QStringLiteral("X"));
        QTest::keyClick(text(), Qt::Key_D, Qt::AltModifier);
    });
    EXPECT_EQ(pasted(), QStringLiteral("X"));
}

} // namespace
