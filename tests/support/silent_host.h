// SPDX-License-Identifier: MIT
#pragma once

#include "text/cTextMethods.h"

namespace tolvo::test {

/// Hears nothing of what the text engine says.
struct SilentHost : TextHost {
    void setStatus(const QString &) override {}
    void warn(const QString &, const QString &) override {}
};

} // namespace tolvo::test
