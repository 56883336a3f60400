// SPDX-License-Identifier: MIT
// The punctuation check: one pass that puts blanks where they belong around stops, brackets and quotation
// marks, and counts what does not match.
#include "text/cTextMethods.h"

#include "base/character_sets.h"
#include "base/code_page.h"
#include "base/numbers.h"
#include "base/strings.h"
#include "text/Tokens.h"

#include <array>

namespace tolvo {

namespace {

/// One run of the check, which moves what is decided to the result. Positions count from 1 in the source.
class PunctuationCheck {
  public:
    PunctuationCheck(QStringView text, const AddressRules &addresses)
        : m_text(text), m_tokens(text, addresses) {
        m_result.reserve(text.size() + text.size() / 16);
    }

    QString run() {
        for (; m_at <= m_text.size(); ++m_at) {
            copyToMark();
            if (m_at <= m_text.size())
                checkCharacter();
        }
        return m_result;
    }

    /// What does not match, one message a line.
    [[nodiscard]] QString messages() const;

  private:
    void copyToMark();
    void checkCharacter();
    void checkStop(int c);
    void checkOpeningBracket();
    void checkClosingBracket();
    void checkSingleQuote();
    void checkDoubleQuote();
    void openQuotation();
    void closeQuotation(bool blankAfter);
    void copyRestOfAddress();
    void countBracket(int unit);

    void trimResult() { m_result.truncate(rightTrimBlanks(m_result).size()); }

    QStringView m_text;
    Tokens m_tokens;
    QString m_result;
    std::array<int, 3> m_counts{}; // opening brackets less closing ones, by kind
    bool m_inDouble = false;
    bool m_inSingle = false;

    // The character under check
    qsizetype m_at = 1;
    int m_next = noUnit;
    int m_previous = noUnit;
    bool m_isAddress = false;
    bool m_blankAfter = false;
};

/// Copies the characters before the next one that needs a check.
void PunctuationCheck::copyToMark() {
    static const std::array<bool, 0x80> isMark = [] {
        std::array<bool, 0x80> marks{};
        for (const QChar mark : QStringView(u".,?!;:([{)]}'\""))
            marks[mark.unicode()] = true;
        return marks;
    }();
    const qsizetype from = m_at;
    while (m_at <= m_text.size() &&
           (m_text[m_at - 1].unicode() >= isMark.size() || !isMark[m_text[m_at - 1].unicode()]))
        ++m_at;
    m_result += m_text.sliced(from - 1, m_at - from);
}

void PunctuationCheck::checkCharacter() {
    const int c = unitAt(m_text, m_at);
    m_next = unitAt(m_text, m_at + 1);
    m_previous = unitAt(m_text, m_at - 1);
    m_isAddress = false;
    m_blankAfter = false;
    countBracket(c);
    if (isOneOf(stopCharacters, c))
        checkStop(c);
    else if (isOneOf(openingBrackets, c))
        checkOpeningBracket();
    else if (isOneOf(closingBrackets, c))
        checkClosingBracket();
    else if (c == u'\'')
        checkSingleQuote();
    else if (c == u'"')
        checkDoubleQuote();
    m_result += QChar(static_cast<char16_t>(c));
    if (m_blankAfter)
        m_result += u' ';
    if (m_isAddress)
        copyRestOfAddress();
}

void PunctuationCheck::checkStop(int c) {
    // Before a hyphen the stop is part of a smiley, or a dash follows.
    if (c == u'.' || c == u':')
        m_isAddress = m_next == u'-' || m_tokens.isWebOrFileName(m_at);
    if (c != u'.' || !m_isAddress)
        trimResult();
    const bool closedUp = m_next == noUnit || isOneOf(u" \r\"'", m_next) ||
                          isOneOf(closingBrackets, m_next) || isOneOf(stopCharacters, m_next);
    m_blankAfter = !closedUp && !m_isAddress && !(isDigitUnit(m_next) && isDigitUnit(m_previous)) &&
                   !(c == u'.' && m_tokens.isAbbreviation(m_at));
}

void PunctuationCheck::checkOpeningBracket() {
    qsizetype tokenAt = m_at;
    while (unitAt(m_text, m_at + 1) == u' ')
        ++m_at;
    // After blanks it is the token that follows them that may end in "(s)".
    if (m_at > tokenAt)
        tokenAt = m_at + 1;
    const bool standsApart = m_previous > u'\'';
    if (!standsApart)
        return;
    const bool tokenFollows = tokenAt <= m_text.size() && !isOneOf(u"\r\n\t", unitAt(m_text, tokenAt));
    const QString ending = tokenFollows ? toLower(m_tokens.WordAt(tokenAt).right(3)) : QString();
    if (ending != u"(s)" && !ending.endsWith(u"()"))
        m_result += u' ';
}

void PunctuationCheck::checkClosingBracket() {
    trimResult();
    m_blankAfter = m_next != noUnit && !isOneOf(u" \r'\"", m_next) && !isOneOf(stopCharacters, m_next);
}

void PunctuationCheck::checkSingleQuote() {
    if (!IsQuoteMark(m_text, m_at + 1))
        return;
    if (m_inSingle)
        closeQuotation(m_next > u')');
    else
        openQuotation();
    m_inSingle = !m_inSingle;
}

void PunctuationCheck::checkDoubleQuote() {
    if (m_inDouble)
        closeQuotation(m_next != noUnit && !isOneOf(u") \r", m_next));
    else
        openQuotation();
    m_inDouble = !m_inDouble;
}

void PunctuationCheck::openQuotation() {
    if (m_previous != noUnit && !isOneOf(u"\n (\t", m_previous))
        m_result += u' ';
    if (m_next == u' ')
        ++m_at;
}

void PunctuationCheck::closeQuotation(bool blankAfter) {
    m_blankAfter = blankAfter;
    if (m_previous == u' ')
        trimResult();
}

/// Copies what follows a stop inside an address as it stands. The first character is not tested: after an
/// address that ends in a stop it is the blank, so the word after that is copied too.
void PunctuationCheck::copyRestOfAddress() {
    qsizetype end = m_at + 1;
    do {
        ++end;
    } while (end <= m_text.size() && !(m_inSingle && m_text[end - 1] == u'\'') &&
             !contains(wordBreakers, m_text[end - 1].unicode()));
    const QStringView rest = m_text.sliced(m_at, qMin(end - 1, m_text.size()) - m_at);
    m_result += rest;
    for (const QChar c : rest)
        countBracket(c.unicode());
    m_at = end - 1;
}

void PunctuationCheck::countBracket(int unit) {
    for (std::size_t kind = 0; kind < m_counts.size(); ++kind) {
        const auto index = static_cast<qsizetype>(kind);
        m_counts[kind] += unit == openingBrackets[index].unicode()   ? 1
                          : unit == closingBrackets[index].unicode() ? -1
                                                                     : 0;
    }
}

QString PunctuationCheck::messages() const {
    QString list = quotesLeftOpen(m_inDouble, m_inSingle);
    for (std::size_t kind = 0; kind < m_counts.size(); ++kind) {
        const int count = m_counts[kind];
        if (count == 0)
            continue;
        const QStringView brackets = count > 0 ? openingBrackets : closingBrackets;
        AddMessage(list, FillCountedTemplate(
                             QStringLiteral("There is %1 unmatched %2 %3 bracket"),
                             QStringLiteral("There are %1 unmatched %2 %3 brackets"), qAbs(count) == 1,
                             {groupedNumber(qAbs(count)),
                              count > 0 ? QStringLiteral("opening") : QStringLiteral("closing"),
                              QString(brackets[static_cast<qsizetype>(kind)])}));
    }
    return list;
}

} // namespace

QString cTextMethods::checkPunctuation(QStringView text, bool silent) const {
    PunctuationCheck check(text, m_addresses);
    QString result = check.run();
    const QString messages = silent ? QString() : check.messages();
    if (!messages.isEmpty())
        m_host.warn(messages, QStringLiteral("Punctuation check"));
    return result;
}

} // namespace tolvo
