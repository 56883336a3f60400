// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>
#include <memory>

namespace tolvo {

/// A notification of the desktop, if it has any.
class Notification {
  public:
    virtual ~Notification() = default;

    /// Shows the notification, with a button "Undo" if `onUndo` is set. False if the desktop shows none.
    virtual bool show(const QString &title, const QString &text) = 0;
    /// To be called before the program ends. Where the notification ends with it, this serves the event loop
    /// until the notification has gone or the user has had time to read it.
    virtual void stayUntilRead() {}
    /// There is nothing left to undo: takes the notification away if it still shows; one that has only just
    /// come up loses its button instead, so that the user can read it.
    virtual void withdrawUndo() = 0;

    std::function<void()> onUndo; ///< called from the event loop when the user chooses "Undo"
};

/// That of this desktop. Needs a QCoreApplication, and does nothing before it is shown.
[[nodiscard]] std::unique_ptr<Notification> desktopNotification();

} // namespace tolvo
