// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace tolvo {

/// What the text engine shows to the user: a status text, and a warning in a box.
class TextHost {
  public:
    virtual ~TextHost() = default;
    /// Replaces the status text.
    virtual void setStatus(const QString &text) = 0;
    /// Shows a box with a warning icon; an empty title stands for the application's.
    virtual void warn(const QString &text, const QString &title) = 0;
};

} // namespace tolvo
