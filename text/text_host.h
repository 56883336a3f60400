// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace tolvo {

/// What the text engine says to the world: a status line, and a warning in a box.
class TextHost {
  public:
    virtual ~TextHost() = default;
    virtual void setStatus(const QString &text) = 0;
    /// A box with a warning icon; an empty title is the application's.
    virtual void warn(const QString &text, const QString &title) = 0;
};

} // namespace tolvo
