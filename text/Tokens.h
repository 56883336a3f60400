// SPDX-License-Identifier: MIT
// WordAt: the run of characters between blanks and line ends around a position. A token is found once, and
// what it is (abbreviation, address) is told once, however many of its characters are asked about: a text may
// be a single token of any length.
#pragma once

#include "text/word_rules.h"

#include <QStringView>
#include <optional>

namespace tolvo {

class Tokens {
  public:
    /// Both must outlive this object.
    Tokens(QStringView text, const AddressRules &addresses) : m_text(text), m_addresses(addresses) {}

    /// The token around a position from 1 that is no blank, CR, LF or TAB; no-break spaces at its ends are
    /// left out, others are part of it.
    [[nodiscard]] QStringView WordAt(qsizetype position);

    /// What the rules say about the token at the position.
    [[nodiscard]] bool isWebOrFileName(qsizetype position);
    [[nodiscard]] bool isAbbreviation(qsizetype position);

  private:
    void moveTo(qsizetype position);

    QStringView m_text;
    const AddressRules &m_addresses;
    qsizetype m_start = 1; // the present token reaches from m_start to before m_end
    qsizetype m_end = 1;
    QStringView m_word;
    std::optional<bool> m_isWebOrFileName;
    std::optional<bool> m_isAbbreviation;
};

} // namespace tolvo
