// SPDX-License-Identifier: MIT
// A PowerButton as a small text that one user passes on to another. docs/powerbuttons.md describes the form.
#pragma once

#include "powerbuttons/CPowerButton.h"
#include "powerbuttons/catalogue.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <memory>

namespace tolvo {

/// How the names of such files end.
inline constexpr QLatin1StringView buttonFileEnding(".tolvobutton");

/// A PowerButton with all that it runs, apart from the places that they have in a row of buttons.
struct SharedButtons {
    /// The one that is meant comes first. A step that runs another one names it by its place here, from 1.
    QList<std::shared_ptr<CPowerButton>> buttons;
    /// Why there are none, for the user; it names the line if there is one to blame.
    QString trouble;

    [[nodiscard]] const CPowerButton &main() const { return *buttons.front(); }
};

/// More steps than that, nested ones counted as often as they run, are refused.
inline constexpr int mostSharedSteps = 1000;

/// Reads a text with any line ends. It refuses what is damaged or written by a newer version, tools that
/// `tools` doesn't know, PowerButtons that run themselves, and more than the above.
///   "Line 5: there is no tool \"ccXXX\""
[[nodiscard]] SharedButtons readButtonFile(const QString &text, const Catalogue &tools);
/// The same for the bytes of a file: UTF-8, or UTF-16 with its mark.
[[nodiscard]] SharedButtons readButtonFile(const QByteArray &bytes, const Catalogue &tools);

/// The same for a file. What can't be read is a trouble too.
[[nodiscard]] SharedButtons loadButtonFile(const QString &path, const Catalogue &tools);

/// The text of buttons without trouble, with LF line ends.
[[nodiscard]] QString buttonFileText(const SharedButtons &shared);

} // namespace tolvo
