// SPDX-License-Identifier: MIT
// The clipboard as text.
#pragma once

#include <QString>
#include <optional>

namespace tolvo {

/// What a clipboard holds, by what a user would call it.
enum class ClipboardContent { Text, Nothing, Picture, Files, Other };

/// Texts have the form of the text area, with CR LF line ends; an implementation converts them to what other
/// programs of its platform use. Reading gives the empty string if the clipboard holds no text, and nothing
/// if its owner doesn't answer or the user ends the wait.
class Clipboard {
  public:
    virtual ~Clipboard() = default;

    /// The clipboard's text for a session, at its start and at each Refresh. This also decides with which
    /// line ends texts go out from then on.
    [[nodiscard]] virtual std::optional<QString> takeText() = 0;

    /// The clipboard's text for a paste; decides nothing about line ends.
    [[nodiscard]] virtual std::optional<QString> readText() = 0;

    /// The text that the middle mouse button pastes; empty on a platform without it.
    [[nodiscard]] virtual std::optional<QString> readSelection() { return QString(); }

    /// Puts the text on the clipboard; an empty text leaves the clipboard empty.
    virtual void writeText(const QString &text) = 0;
};

} // namespace tolvo
