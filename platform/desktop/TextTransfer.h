// SPDX-License-Identifier: MIT
// The text of another program's clipboard, fetched in small steps, so that an owner that hangs can't block
// the program.
#pragma once

#include <QString>

#include <memory>

namespace tolvo {

/// One transfer.
class TextTransfer {
  public:
    enum class Selection { Clipboard, Primary };

    virtual ~TextTransfer() = default;

    /// Continues the transfer for at most this long. True once it is over.
    virtual bool advance(int milliseconds) = 0;

    /// Whether the owner has done something since the last call.
    [[nodiscard]] virtual bool ownerHasMoved() = 0;

    /// The text, once the transfer is over; empty if the selection has no owner or no text.
    [[nodiscard]] virtual QString text() const = 0;
};

} // namespace tolvo
