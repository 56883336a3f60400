// SPDX-License-Identifier: MIT
#include "platform/desktop/unix/DesktopNotification.h"

#include "base/application.h"

#include <QDBusMessage>
#include <QFile>
#include <QStringList>
#include <QVariantMap>

namespace tolvo {

namespace {

constexpr int patience = 2000;    // milliseconds
constexpr int readingTime = 3000; // the same

QString service() {
    return QStringLiteral("org.freedesktop.Notifications");
}

QString path() {
    return QStringLiteral("/org/freedesktop/Notifications");
}

QString undoAction() {
    return QStringLiteral("undo");
}

/// Without one the library would start a bus of its own, which takes a while and has nobody on it.
bool busIsThere() {
    return qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS") ||
           QFile::exists(qEnvironmentVariable("XDG_RUNTIME_DIR") + QStringLiteral("/bus"));
}

QDBusMessage call(const QString &method) {
    return QDBusMessage::createMethodCall(service(), path(), service(), method);
}

} // namespace

bool DesktopNotification::takesMarkup() {
    const QDBusMessage reply = m_bus->call(call(QStringLiteral("GetCapabilities")), QDBus::Block, patience);
    return reply.type() == QDBusMessage::ReplyMessage &&
           reply.arguments().value(0).toStringList().contains(QStringLiteral("body-markup"));
}

bool DesktopNotification::show(const QString &title, const QString &text) {
    if (!busIsThere())
        return false;
    m_bus = QDBusConnection::sessionBus();
    if (!m_bus->isConnected())
        return false;
    m_bus->connect(service(), path(), service(), QStringLiteral("ActionInvoked"), this,
                   SLOT(chosen(uint, QString)));
    m_bus->connect(service(), path(), service(), QStringLiteral("NotificationClosed"), this,
                   SLOT(closed(uint, uint)));
    m_title = title;
    m_text = takesMarkup() ? text.toHtmlEscaped() : text;
    m_shown.start();
    return notify();
}

/// Shows what is to be shown now, in the place of what shows already.
bool DesktopNotification::notify() {
    QStringList actions;
    if (onUndo)
        actions = {undoAction(), QStringLiteral("Undo")};
    QDBusMessage message = call(QStringLiteral("Notify"));
    message << applicationTitle() << m_id << QStringLiteral("tolvo") << m_title << m_text << actions
            << QVariantMap{{QStringLiteral("desktop-entry"), QStringLiteral("tolvo")}} << -1;
    const QDBusMessage reply = m_bus->call(message, QDBus::Block, patience);
    if (reply.type() != QDBusMessage::ReplyMessage)
        return false;
    m_id = reply.arguments().value(0).toUInt();
    return true;
}

void DesktopNotification::withdrawUndo() {
    onUndo = nullptr;
    if (m_id == 0)
        return;
    if (m_shown.elapsed() < readingTime) {
        notify();
        return;
    }
    QDBusMessage message = call(QStringLiteral("CloseNotification"));
    message << m_id;
    m_bus->call(message, QDBus::Block, patience);
    m_id = 0;
}

void DesktopNotification::chosen(uint id, const QString &action) {
    if (id == m_id && action == undoAction() && onUndo)
        onUndo();
}

void DesktopNotification::closed(uint id, uint) {
    if (id == m_id)
        m_id = 0;
}

std::unique_ptr<Notification> desktopNotification() {
    return std::make_unique<DesktopNotification>();
}

} // namespace tolvo
