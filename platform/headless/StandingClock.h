// SPDX-License-Identifier: MIT
#pragma once

#include "platform/clock.h"

namespace tolvo {

/// A clock that stands still until it is set.
class StandingClock final : public Clock {
  public:
    [[nodiscard]] QDateTime now() const override { return time; }

    QDateTime time = QDateTime(QDate(2000, 1, 1), QTime(12, 0));
};

} // namespace tolvo
