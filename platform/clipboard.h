// SPDX-License-Identifier: MIT
// The clipboard as text.
#pragma once

#include <QString>
#include <optional>

namespace tolvo {

/// Texts go in and out in the form of the text area, with CR LF line ends; an implementation knows what other
/// programs of its platform use. Reading gives the empty string when the clipboard holds no text, and nothing
/// when its owner doesn't answer or the user has no patience with it.
class Clipboard {
  public:
    virtual ~Clipboard() = default;

    /// The clipboard's text as a session takes it in, at its start and at each Refresh. This also settles in
    /// which line ends the text goes out again.
    [[nodiscard]] virtual std::optional<QString> takeText() = 0;

    /// The clipboard's text as it would be pasted; settles nothing.
    [[nodiscard]] virtual std::optional<QString> readText() = 0;

    /// The text that the middle mouse button pastes, where the platform has such a thing.
    [[nodiscard]] virtual std::optional<QString> readSelection() { return QString(); }

    /// Puts the text on the clipboard; an empty text leaves the clipboard empty.
    virtual void writeText(const QString &text) = 0;
};

} // namespace tolvo
