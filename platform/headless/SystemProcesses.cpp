// SPDX-License-Identifier: MIT
#include "platform/headless/SystemProcesses.h"

#include "base/failure.h"

#include <QCoreApplication>
#include <QProcess>
#include <QProcessEnvironment>

#include <utility>

namespace tolvo {

namespace {

[[noreturn]] void failNotStarted(const QString &program) {
    throw Failure(failureNumber::fileNotFound, QStringLiteral("Can't start the program \"%1\"").arg(program));
}

} // namespace

qint64 SystemProcesses::start(const ProgramStart &start) {
    QProcess process;
    process.setProgram(start.program);
    process.setArguments(start.arguments);
    process.setStandardInputFile(start.heldBack ? m_gate.input() : QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    if (start.heldBack || start.askedFor) {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const auto &[said, variable] :
             {std::pair{start.heldBack, heldBackVariable}, {start.askedFor, askedForVariable}}) {
            if (said)
                environment.insert(QLatin1StringView(variable),
                                   QString::number(QCoreApplication::applicationPid()));
        }
        process.setProcessEnvironment(environment);
    }
    // The program that started this one may wait for the end of the streams that it passed on.
    keepFilesFromChildren();
    qint64 identifier = 0;
    if (!process.startDetached(&identifier))
        failNotStarted(start.program);
    return identifier;
}

void SystemProcesses::letGo() {
    m_gate.open();
}

void SystemProcesses::waitFor(qint64 process) {
    waitForProcess(process);
}

bool SystemProcesses::open(const QString &) {
    return false;
}

} // namespace tolvo
