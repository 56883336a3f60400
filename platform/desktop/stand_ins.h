// SPDX-License-Identifier: MIT
// How a text travels through a QTextDocument without loss.
//
// The document takes CR, LF, U+2029, U+FDD0 and U+FDD1 for ends of blocks, whatever they stood for. A pair CR
// LF is such an end and becomes one block; the other four and a lone CR or LF are ordinary characters to us,
// so each travels as a character that the text does not hold.
#pragma once

#include <QString>
#include <QStringView>

#include <array>

namespace tolvo {

class StandIns {
  public:
    /// Stand-ins for a text: the first five noncharacters of U+FDD2 to U+FDEF that it does not hold, then
    /// characters for private use. A text that holds all of these 6,430 characters can't be told apart from
    /// its stand-ins; none that was not made for that does.
    explicit StandIns(QStringView text = {});

    /// Whether a text holds a character that is in use as a stand-in, so that new ones must be found.
    [[nodiscard]] bool clashWith(QStringView text) const;

    /// The text as the document takes it, with U+2029 between the blocks.
    [[nodiscard]] QString encode(QStringView text) const;

    /// The text of a document's raw text.
    [[nodiscard]] QString decode(QStringView raw) const;

    /// A CR and a LF that have come together in the raw text by an edit between them: a line end that is not
    /// yet the end of a block.
    [[nodiscard]] QString looseLineEnd() const;

  private:
    [[nodiscard]] int indexOf(QChar standIn) const;

    std::array<QChar, 5> m_standIns;
};

} // namespace tolvo
