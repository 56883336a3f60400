// SPDX-License-Identifier: MIT
#pragma once

#include "platform/desktop/Notification.h"

#include <QDBusConnection>
#include <QElapsedTimer>
#include <QObject>
#include <optional>

namespace tolvo {

/// The service org.freedesktop.Notifications on the session bus (Desktop Notifications 1.2). A text that the
/// service takes for markup is escaped; a service that doesn't answer within two seconds counts as none.
class DesktopNotification : public QObject, public Notification {
    Q_OBJECT

  public:
    bool show(const QString &title, const QString &text) override;
    void withdrawUndo() override;

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
