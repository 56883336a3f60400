// SPDX-License-Identifier: MIT
// How a text travels through a QTextDocument without loss.
//
// The document takes CR, LF, U+2029, U+FDD0 and U+FDD1 for ends of blocks. Here only the pair CR LF ends a
// block. A lone CR or LF and the other three are ordinary characters, so each is replaced by a character that
// the text doesn't hold: its stand-in.
#pragma once

#include <QString>
#include <QStringView>

#include <array>

namespace tolvo {

/// The stand-ins for one text.
class StandIns {
  public:
    /// Stand-ins for a text: the first five noncharacters of U+FDD2 to U+FDEF that it does not hold, then
    /// private-use characters. A text that holds all of these 6,430 characters would come back changed.
    explicit StandIns(QStringView text = {});

    /// Whether a text holds one of the stand-ins, so that new ones must be found.
    [[nodiscard]] bool clashWith(QStringView text) const;

    /// The text as the document takes it, with U+2029 between the blocks.
    [[nodiscard]] QString encode(QStringView text) const;

    /// The text that the document's raw text stands for.
    [[nodiscard]] QString decode(QStringView raw) const;

    /// The stand-ins of CR and LF side by side, as an edit may leave them in the raw text: a line end that is
    /// not yet the end of a block.
    [[nodiscard]] QString looseLineEnd() const;

  private:
    [[nodiscard]] int indexOf(QChar standIn) const;

    std::array<QChar, 5> m_standIns;
};

} // namespace tolvo
