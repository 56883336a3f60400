// SPDX-License-Identifier: MIT
// Line ends on the way between the text area and other programs, where these use LF.
//
// A text without any CR has LF line ends: it comes in with CR LF and goes out with LF again. A text with a CR
// is taken and given as it is.
#pragma once

#include <QString>

namespace tolvo {

class ClipboardLineEnds {
  public:
    /// A text of another program in the form of the text area; settles how texts go out from now on.
    [[nodiscard]] QString takeIn(QString foreign);

    /// The same without settling anything, as for a paste.
    [[nodiscard]] static QString comeIn(QString foreign);

    /// A text of the text area as other programs get it. Before anything was taken in, with LF.
    [[nodiscard]] QString goOut(const QString &own) const;

  private:
    bool m_lineFeeds = true;
};

} // namespace tolvo
