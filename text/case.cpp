// SPDX-License-Identifier: MIT
// Capitals by sentences. Capitals by words are in titles.cpp.
#include "text/cTextMethods.h"

#include "base/character_sets.h"
#include "base/code_page.h"
#include "text/Tokens.h"

namespace tolvo {

namespace {

/// True for an "i" without a letter before it.
bool startsPronoun(char16_t unit, int previous) {
    return unit == u'i' && !isLetterUnit(previous);
}

} // namespace

QString cTextMethods::ReverseCase(QStringView text) const {
    QString result = text.toString();
    for (QChar &c : result) {
        const char16_t upper = toUpper(c.unicode());
        c = upper == c.unicode() ? toLower(c.unicode()) : upper;
    }
    m_host.setStatus(QString::number(result.size()) + QStringLiteral(" characters: reverse case"));
    return result;
}

QString cTextMethods::SentenceCase(QStringView text) const {
    QString result = text.toString();
    Tokens tokens(text, m_addresses);
    bool nextIsUpper = true;
    int following = noUnit;
    for (qsizetype i = 1; i <= text.size(); ++i) {
        const auto source = static_cast<char16_t>(unitAt(text, i));
        // At the last character this stays that character itself, so a lone "i" there stays in lower case.
        if (i < text.size())
            following = unitAt(text, i + 1);
        char16_t c = nextIsUpper ? toUpper(source) : toLower(source);
        if (nextIsUpper)
            nextIsUpper = !isLetter(c);
        else if (startsPronoun(c, unitAt(text, i - 1)) && following != u'.' && !isLetterUnit(following))
            c = u'I';
        result[i - 1] = c;
        if (contains(sentenceEnds, c) && !isDigitUnit(unitAt(text, i + 1)) && !tokens.isWebOrFileName(i) &&
            !tokens.isAbbreviation(i))
            nextIsUpper = true;
    }
    m_host.setStatus(QStringLiteral("Selection: sentence case"));
    return result;
}

QString cTextMethods::Capitalise(QStringView text, bool colonEndsSentence) const {
    QString result = text.toString();
    Tokens tokens(text, m_addresses);
    bool nextIsUpper = true;
    for (qsizetype i = 1; i <= text.size(); ++i) {
        auto c = static_cast<char16_t>(unitAt(text, i));
        const int following = unitAt(text, i + 1);
        if (nextIsUpper) {
            c = toUpper(c);
            nextIsUpper = !isLetter(c);
        }
        if (startsPronoun(c, unitAt(text, i - 1)) && following != u'.' && !isLetterUnit(following))
            c = u'I';
        result[i - 1] = c;
        const bool endsSentence = contains(sentenceEnds, c) || (c == u':' && colonEndsSentence);
        // Addresses need no test of their own: a letter follows their stops.
        if (endsSentence && !isDigitUnit(following) && !isLetterUnit(following) && !tokens.isAbbreviation(i))
            nextIsUpper = true;
    }
    m_host.setStatus(QStringLiteral("Selection: sentences capitalised"));
    return result;
}

} // namespace tolvo
