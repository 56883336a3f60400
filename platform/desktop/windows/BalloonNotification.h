// SPDX-License-Identifier: MIT
#pragma once

#include "platform/desktop/Notification.h"

#include <QEventLoop>

#include <windows.h>

#include <shellapi.h>

namespace tolvo {

/// A balloon at the notification area, which Windows shows among its notifications. It has no buttons: a
/// click on it is "Undo", and undoes nothing once another text is on the clipboard. It goes with the program.
class BalloonNotification final : public Notification {
  public:
    BalloonNotification() = default;
    ~BalloonNotification() override;
    BalloonNotification(const BalloonNotification &) = delete;
    BalloonNotification &operator=(const BalloonNotification &) = delete;

    bool show(const QString &title, const QString &text) override;
    void stayUntilRead() override;
    void withdrawUndo() override;

  private:
    static LRESULT CALLBACK receive(HWND window, UINT message, WPARAM first, LPARAM second);
    void remove();

    HWND m_window = nullptr; ///< receives what happens to the balloon; none while it doesn't show
    DWORD m_sequence = 0;    ///< of the clipboard, when the balloon was shown
    QEventLoop m_loop;
    bool m_clicked = false;
};

} // namespace tolvo
