// SPDX-License-Identifier: MIT
// Converts line ends between the text area and other programs, which use LF.
//
// A text without any CR has LF line ends: they become CR LF on the way in and LF again on the way out. A text
// with a CR passes unchanged.
#pragma once

#include <QString>

namespace tolvo {

/// The rule of one session.
class ClipboardLineEnds {
  public:
    /// Converts a text of another program for the text area, and decides how texts go out from now on.
    [[nodiscard]] QString takeIn(QString foreign);

    /// The same for a paste, which decides nothing.
    [[nodiscard]] static QString comeIn(QString foreign);

    /// Converts a text of the text area for other programs; to LF if no text was taken in yet.
    [[nodiscard]] QString goOut(const QString &own) const;

    /// Whether line ends go out as LF, not as CR LF.
    [[nodiscard]] bool lineFeeds() const { return m_lineFeeds; }

  private:
    bool m_lineFeeds = true;
};

} // namespace tolvo
