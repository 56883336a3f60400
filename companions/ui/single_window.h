// SPDX-License-Identifier: MIT
// One window of a kind for one user.
#pragma once

#include <QLocalServer>
#include <QLockFile>
#include <QString>
#include <functional>

namespace tolvo {

/// Keeps a companion to one running program: a second one lets the first raise its window, and ends.
class SingleWindow {
  public:
    /// `lockFile` is what the programs of one kind and one user share.
    explicit SingleWindow(const QString &lockFile);

    /// Whether this program is the first. If not, the first one has been told.
    [[nodiscard]] bool isFirst();

    std::function<void()> onSecond; ///< a second program was started

  private:
    QString m_name; ///< of the local socket
    QLockFile m_lock;
    QLocalServer m_server;
};

} // namespace tolvo
