// SPDX-License-Identifier: MIT
#include "app/command.h"

#include "base/paths.h"
#include "platform/desktop/DesktopClipboard.h"
#include "platform/desktop/Notification.h"
#include "platform/desktop/clipboard_keeper.h"
#include "platform/desktop/clipboard_ways.h"
#include "platform/program_folders.h"
#include "preferences/settings_store.h"
#include "shell/headless/clipboard_command.h"

#include <QEventLoop>
#include <QGuiApplication>
#include <QPainter>
#include <QPalette>
#include <QRasterWindow>
#include <QTimer>

namespace tolvo {

namespace {

constexpr int done = 0;
constexpr int failed = 1;
constexpr int badUsage = 2;

/// What stands on the screen while the clipboard answers only to a window with the focus, or with input.
class SmallWindow : public QRasterWindow {
  public:
    explicit SmallWindow(const QString &text) : m_text(text) {
        setTitle(text);
        resize(300, 80);
    }

    /// Shows the window until a key is pressed or let go in it, or a click comes: the key that has started
    /// the command will do. False if none comes in time, or the window is closed.
    bool waitForInput() {
        m_text += QStringLiteral("\nPress a key or click here");
        QTimer::singleShot(inputMilliseconds, &m_loop, &QEventLoop::quit);
        show();
        m_loop.exec();
        return m_hadInput;
    }

  protected:
    bool event(QEvent *event) override {
        switch (event->type()) {
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
        case QEvent::MouseButtonPress:
        case QEvent::TouchBegin:
            m_hadInput = true;
            [[fallthrough]];
        case QEvent::Close:
            m_loop.quit();
            break;
        default:
            break;
        }
        return QRasterWindow::event(event);
    }

    void paintEvent(QPaintEvent *) override {
        QPainter painter(this);
        painter.fillRect(QRect(QPoint(), size()), QGuiApplication::palette().window());
        painter.setPen(QGuiApplication::palette().windowText().color());
        painter.drawText(QRect(QPoint(), size()), Qt::AlignCenter, m_text);
    }

  private:
    static constexpr int inputMilliseconds = 10'000;

    QString m_text;
    QEventLoop m_loop;
    bool m_hadInput = false;
};

CommandOutcome runOnDesktop(ClipboardCommand &command, DesktopClipboard &clipboard) {
    SmallWindow window(command.name());
    if (DesktopClipboard::needsInputToWrite() && !window.waitForInput())
        return {.message =
                    QStringLiteral("This desktop gives its clipboard only to a window that is in use")};
    if (!clipboard.comesAtOnce())
        window.show();
    return command.run(clipboard);
}

/// Runs the command, reports, and stays until the clipboard is taken over.
int runWithClipboard(ClipboardCommand &command, KeeperSession &keeper, const ConsoleBoxes &console) {
    DesktopClipboard clipboard;
    const CommandOutcome outcome = runOnDesktop(command, clipboard);
    const int code = outcome.done ? done : failed;
    console.say(command.name() + QStringLiteral(": ") + outcome.message);
    keeper.sessionOver(code); // whoever waits for the command doesn't wait for the notification

    const std::unique_ptr<Notification> notification = desktopNotification();
    if (outcome.before)
        notification->onUndo = [&] { clipboard.replaceOwnText(*outcome.before); };
    notification->show(command.name(), QString(outcome.message).remove(u'\r'));
    keeper.keepClipboardUntilTaken();
    notification->stayUntilRead();
    if (outcome.before)
        notification->withdrawUndo();
    return code;
}

} // namespace

int runCommand(int argc, char **argv, const Arguments &arguments, KeeperSession &keeper) {
    const ConsoleBoxes console(QStringLiteral("tolvo: "));
    try {
        ProgramFolders folders;
        {
            const QCoreApplication application(argc, argv);
            folders = programFolders();
        }
        SettingsStore store(SettingsStore::defaultPath());
        const Catalogue catalogue = Catalogue::read(sAppPath(folders.data) + Catalogue::fileName);
        FileExtensions extensions(sAppPath(folders.data) + QStringLiteral("FileExtensions.txt"),
                                  FileExtensions::Source::System);
        ClipboardCommand command(
            {.store = store, .catalogue = catalogue, .extensions = extensions, .dataFolder = folders.data},
            arguments.button, arguments.tool);
        if (!hasClipboard())
            throw std::runtime_error("there is no display, so there is no clipboard");
        const QGuiApplication application(argc, argv);
        QGuiApplication::setDesktopFileName(QStringLiteral("tolvo"));
        QGuiApplication::setQuitOnLastWindowClosed(false);
        return runWithClipboard(command, keeper, console);
    } catch (const BadRequest &refusal) {
        console.say(QString::fromUtf8(refusal.what()));
        return badUsage;
    } catch (const std::exception &failure) {
        console.say(QString::fromUtf8(failure.what()));
        return failed;
    }
}

} // namespace tolvo
