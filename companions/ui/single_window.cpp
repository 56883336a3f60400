// SPDX-License-Identifier: MIT
#include "companions/ui/single_window.h"

#include <QCryptographicHash>
#include <QLocalSocket>

namespace tolvo {

namespace {

constexpr int patience = 1000; // milliseconds

} // namespace

SingleWindow::SingleWindow(const QString &lockFile)
    : m_name(
          QStringLiteral("tolvo-") +
          QString::fromLatin1(QCryptographicHash::hash(lockFile.toUtf8(), QCryptographicHash::Sha1).toHex())),
      m_lock(lockFile) {
    m_lock.setStaleLockTime(0);
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    QObject::connect(&m_server, &QLocalServer::newConnection, &m_server, [this] {
        delete m_server.nextPendingConnection(); // that it came is all it says
        if (onSecond)
            onSecond();
    });
}

bool SingleWindow::isFirst() {
    if (!m_lock.tryLock() && m_lock.error() == QLockFile::LockFailedError) {
        QLocalSocket first;
        first.connectToServer(m_name);
        first.waitForConnected(patience);
        return false;
    }
    QLocalServer::removeServer(m_name); // of a program that has died
    m_server.listen(m_name);
    return true;
}

} // namespace tolvo
