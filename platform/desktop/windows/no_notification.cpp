// SPDX-License-Identifier: MIT
// A notification of Windows ends with the program that shows it, and a command ends at once.
#include "platform/desktop/Notification.h"

namespace tolvo {

namespace {

class NoNotification final : public Notification {
  public:
    bool show(const QString &, const QString &) override { return false; }
    void withdrawUndo() override {}
};

} // namespace

std::unique_ptr<Notification> desktopNotification() {
    return std::make_unique<NoNotification>();
}

} // namespace tolvo
