// SPDX-License-Identifier: MIT
// A whole run of the program offscreen, for stories.
#pragma once

#include "platform/desktop/DesktopClipboard.h"
#include "platform/desktop/EscapeWatch.h"
#include "platform/headless/SilentSound.h"
#include "platform/network/NetworkHttpClient.h"
#include "preferences/settings_keys.h"
#include "shell/ui/desktop_session.h"
#include "spelling/word_automation.h"
#include "tests/support/boxes.h"
#include "tests/support/recording_processes.h"
#include "tests/ui/user.h"

#include <QClipboard>
#include <QPlainTextEdit>
#include <QTemporaryDir>

namespace tolvo {

/// One whole run of the program, with a user who acts once the window is there.
class MainWindowStory : public testing::Test {
  protected:
    void run(const QString &clipboardText, const std::function<void()> &user) {
        QGuiApplication::setQuitOnLastWindowClosed(false);
        set(store, settingKeys.preferences.showTips, false);
        QApplication::clipboard()->setText(clipboardText);
        const RunServices services{store, clipboard,  boxes,    sound,    processes,
                                   clock, extensions, programs, programs, spelling};
        modMain program(services,
                        [&] { return std::make_unique<DesktopSession>(services, clipboard, escape); });
        QTimer::singleShot(0, &escape, [&] {
            EXPECT_TRUE(QTest::qWaitForWindowActive(window()));
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

    const QString programs = QString::fromLocal8Bit(qgetenv("TOLVO_BIN"));
    QTemporaryDir folder;
    SettingsStore store{folder.filePath(QStringLiteral("settings.sqlite"))};
    DesktopClipboard clipboard;
    test::NamedBoxes boxes;
    SilentSound sound;
    test::RecordingProcesses processes;
    Clock clock;
    FileExtensions extensions;
    EscapeWatch escape;
    NetworkHttpClient http;
    NoWordAutomation word;
    SpellingServices spelling{store, boxes, http, word, programs, programs};
};

} // namespace tolvo
