// SPDX-License-Identifier: MIT
#include "spelling/word_finder.h"

#include "base/code_page.h"

#include <algorithm>
#include <utility>

namespace tolvo {

namespace {

constexpr char32_t straight = U'\'';
constexpr char32_t curly = 0x2019;
constexpr char32_t nonJoiner = 0x200C; // shapes the letters around it, as in Persian
constexpr char32_t joiner = 0x200D;

bool isAnyLetter(char32_t character) {
    return QChar::isLetter(character) || (character <= 0xFFFF && isLetter(static_cast<char16_t>(character)));
}

/// The character at a place, and where the next one starts.
std::pair<char32_t, qsizetype> characterAt(QStringView text, qsizetype at) {
    const QChar unit = text[at];
    if (unit.isHighSurrogate() && at + 1 < text.size() && text[at + 1].isLowSurrogate())
        return {QChar::surrogateToUcs4(unit, text[at + 1]), at + 2};
    return {unit.unicode(), at + 1};
}

} // namespace

WordFinder::WordFinder(WordRules rules, const QString &wordCharacters, Conversion conversion)
    : m_rules(rules), m_conversion(std::move(conversion)) {
    for (const uint character : wordCharacters.toUcs4())
        m_wordCharacters.insert(character);
}

WordFinder::Kind WordFinder::kindOf(char32_t character) {
    if (isAnyLetter(character))
        return Kind::Letter;
    if (character == U' ')
        return Kind::Break;
    const auto known = m_kinds.constFind(character);
    return known != m_kinds.cend() ? *known : *m_kinds.insert(character, kindByRules(character));
}

bool WordFinder::joinsApostrophe(char32_t apostrophe) const {
    if (m_rules.dictionaryDecides)
        return m_wordCharacters.contains(straight) || m_wordCharacters.contains(curly);
    return apostrophe == straight || m_rules.curlyApostrophe;
}

WordFinder::Kind WordFinder::kindByRules(char32_t character) const {
    if (QChar::isMark(character))
        return Kind::Mark;
    if (character == straight || character == curly)
        return joinsApostrophe(character) ? Kind::Joiner : Kind::Break;
    if (character == U'-' && !m_rules.dictionaryDecides)
        return Kind::Joiner;
    if (!m_rules.dictionaryDecides)
        return Kind::Break;
    if (character == nonJoiner || character == joiner)
        return Kind::Joiner;
    const auto isOfWords = [this](char32_t one) {
        return m_wordCharacters.contains(one) || isAnyLetter(one) || QChar::isMark(one);
    };
    bool counts = m_wordCharacters.contains(character);
    if (!counts && m_conversion && !QChar::isSpace(character)) {
        const QString before = QString::fromUcs4(&character, 1);
        const QString after = m_conversion(before);
        const QList<uint> becomes = after.toUcs4();
        counts =
            after != before && !after.isEmpty() && std::all_of(becomes.cbegin(), becomes.cend(), isOfWords);
    }
    if (!counts)
        return Kind::Break;
    return QChar::isDigit(character) ? Kind::Letter : Kind::Inner;
}

/// Whether a word that has come to a place takes the character there.
bool WordFinder::goesOn(QStringView text, qsizetype at) {
    const auto [character, after] = characterAt(text, at);
    const Kind kind = kindOf(character);
    if (kind != Kind::Joiner)
        return kind != Kind::Break;
    return after < text.size() && kindOf(characterAt(text, after).first) > Kind::Joiner;
}

FoundWord WordFinder::next(QStringView text, qsizetype from) {
    qsizetype at = from;
    qsizetype outerStart = from;
    while (at < text.size()) {
        const auto [character, after] = characterAt(text, at);
        const Kind kind = kindOf(character);
        if (kind == Kind::Letter)
            break;
        at = after;
        if (kind != Kind::Inner)
            outerStart = at;
    }
    const qsizetype start = at;
    qsizetype end = at; // after the last letter or mark
    while (at < text.size() && goesOn(text, at)) {
        const auto [character, after] = characterAt(text, at);
        at = after;
        if (kindOf(character) >= Kind::Mark)
            end = after;
    }
    return {start, end - start, outerStart, at - outerStart};
}

} // namespace tolvo
