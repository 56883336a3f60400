// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QElapsedTimer>
#include <QObject>
#include <functional>
#include <optional>

namespace tolvo {

/// A notification of the desktop, if it has any: the service org.freedesktop.Notifications on the session bus
/// (Desktop Notifications 1.2). Nothing of the bus is touched before show(). Needs a
/// QCoreApplication.
class DesktopNotification : public QObject {
    Q_OBJECT

  public:
    /// Shows the notification, with a button "Undo" if `onUndo` is set; a text that the service takes for
    /// markup is escaped. False if there is no such service, or none that answers within two seconds.
    bool show(const QString &title, const QString &text);
    /// There is nothing left to undo: takes the notification away if it still shows; one that has only just
    /// come up loses its button instead, so that the user can read it.
    void withdrawUndo();

    std::function<void()> onUndo; ///< called from the event loop when the user chooses "Undo"

  private slots:
    void chosen(uint id, const QString &action);
    void closed(uint id, uint reason);

  private:
    [[nodiscard]] bool takesMarkup();
    bool notify();

    std::optional<QDBusConnection> m_bus;
    QString m_title;
    QString m_text;
    QElapsedTimer m_shown;
    uint m_id = 0; ///< 0: nothing shows
};

} // namespace tolvo
