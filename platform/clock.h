// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>

namespace tolvo {

/// The present date and time.
class Clock {
  public:
    virtual ~Clock() = default;
    [[nodiscard]] virtual QDateTime now() const { return QDateTime::currentDateTime(); }
};

} // namespace tolvo
