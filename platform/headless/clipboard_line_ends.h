// SPDX-License-Identifier: MIT
// Converts line ends between the text area and other programs, which use LF, or CR LF on Windows.
//
// A text with LF and without any CR has LF line ends: they become CR LF on the way in and LF again on the way
// out. A text with a CR passes unchanged. A text of one line goes out with the line ends of the system.
#pragma once

#include <QString>
#include <QtGlobal>

namespace tolvo {

/// Whether the programs of this system end their lines with LF.
#ifdef Q_OS_WIN
inline constexpr bool systemLineFeeds = false;
#else
inline constexpr bool systemLineFeeds = true;
#endif

/// The rule of one session.
class ClipboardLineEnds {
  public:
    /// Converts a text of another program for the text area, and decides how texts go out from now on.
    [[nodiscard]] QString takeIn(QString foreign);

    /// The same for a paste, which decides nothing.
    [[nodiscard]] static QString comeIn(QString foreign);

    /// Converts a text of the text area for other programs; to the system's if no text was taken in yet.
    [[nodiscard]] QString goOut(const QString &own) const;

    /// Whether line ends go out as LF, not as CR LF.
    [[nodiscard]] bool lineFeeds() const { return m_lineFeeds; }

  private:
    bool m_lineFeeds = systemLineFeeds;
};

} // namespace tolvo
