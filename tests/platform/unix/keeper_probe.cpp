// SPDX-License-Identifier: MIT
// The smallest program with a keeper. keeper_probe PID-FILE EXIT-CODE WHAT [ARGUMENT], WHAT being
//   write TEXT   Copy and Close with a text ("" leaves the clipboard empty)
//   fill SIZE    the same with a text of that many characters
//   take         prints what a session would take in
//   crash, hang, leave
#include "platform/desktop/DesktopClipboard.h"
#include "platform/desktop/clipboard_keeper.h"

#include <QGuiApplication>

#include <QFile>

#include <csignal>
#include <cstdio>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

int session(tolvo::KeeperSession &keeper, int argc, char **argv) {
    QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    const QString what = arguments.value(3);
    const int exitCode = arguments.value(2).toInt();
    QFile pidFile(arguments.value(1));
    if (pidFile.open(QIODevice::WriteOnly)) {
        pidFile.write(QByteArray::number(getpid()));
        pidFile.close();
    }
    tolvo::DesktopClipboard clipboard;
    if (what == u"crash"_s)
        std::raise(SIGSEGV);
    if (what == u"hang"_s)
        pause();
    if (what == u"leave"_s)
        return exitCode;
    if (what == u"take"_s)
        std::printf("[%s]\n", clipboard.takeText().value_or(u"no answer"_s).toUtf8().constData());
    if (what == u"write"_s)
        clipboard.writeText(arguments.value(4));
    if (what == u"fill"_s)
        clipboard.writeText(QString(arguments.value(4).toInt(), u'x'));
    std::fflush(stdout);
    keeper.sessionOver(exitCode);
    keeper.keepClipboardUntilTaken();
    return 0;
}

} // namespace

int main(int argc, char **argv) {
    return tolvo::runAsClipboardKeeper(
        [&](tolvo::KeeperSession &keeper) { return session(keeper, argc, argv); });
}
