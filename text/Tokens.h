// SPDX-License-Identifier: MIT
// WordAt: the run of characters between blanks and line ends around a position. A token is found and judged
// (abbreviation, address) once, however many of its characters are asked about, since a whole text may be one
// token. Positions count from 1.
#pragma once

#include "text/word_rules.h"

#include <QStringView>
#include <optional>

namespace tolvo {

/// The tokens of one text. Cheap when positions are asked about in order.
class Tokens {
  public:
    /// Text and rules must outlive this object.
    Tokens(QStringView text, const AddressRules &addresses) : m_text(text), m_addresses(addresses) {}

    /// The token around a position, which must be in the text and not at a blank, CR, LF or TAB. No-break
    /// spaces at its ends are left out, those inside are part of it.
    ///   Tokens(u"see (e.g. this)", addresses).WordAt(6) == u"(e.g."
    [[nodiscard]] QStringView WordAt(qsizetype position);

    /// Whether the token at the position is an address or a file name, or an abbreviation: see
    /// AddressRules::IsWebOrFileName and IsAbbreviation in text/word_rules.h.
    [[nodiscard]] bool isWebOrFileName(qsizetype position);
    [[nodiscard]] bool isAbbreviation(qsizetype position);

  private:
    void moveTo(qsizetype position);

    QStringView m_text;
    const AddressRules &m_addresses;
    qsizetype m_start = 1; // the current token reaches from m_start to just before m_end
    qsizetype m_end = 1;
    QStringView m_word;
    std::optional<bool> m_isWebOrFileName;
    std::optional<bool> m_isAbbreviation;
};

} // namespace tolvo
