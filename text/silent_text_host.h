// SPDX-License-Identifier: MIT
#pragma once

#include "text/text_host.h"

namespace tolvo {

/// For an engine that has nothing to say to anybody: in the background, or for a look at a result.
class SilentTextHost final : public TextHost {
  public:
    void setStatus(const QString &) override {}
    void warn(const QString &, const QString &) override {}
};

} // namespace tolvo
