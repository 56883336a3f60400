// SPDX-License-Identifier: MIT
// Capitals by words: "Initial Caps" and "Title Case".
#include "text/cTextMethods.h"

#include "base/code_page.h"
#include "text/Tokens.h"

#include <algorithm>

namespace tolvo {

namespace {

/// Words that stay in lower case inside a title.
constexpr QStringView smallWordList = u",a,an,and,as,at,but,by,else,for,from,if,in,into,nor,not,of,off,on,or,"
                                      u"out,over,so,the,then,to,until,up,when,where,with,yet,";

/// A word after one of these and a hyphen stays in lower case. The list has no comma at its ends, so "ante"
/// and "under" are never found. That is intended.
constexpr QStringView hyphenPrefixList =
    u"ante,anti,bi,bio,co,counter,de,extra,infra,inter,intra,macro,meta,micro,mid,mini,multi,neo,non,off,"
    u"over,post,pre,pro,proto,pseudo,re,semi,socio,sub,super,supra,trans,quasi,ultra,un,under";

bool isSmallWord(QStringView word) {
    static const WordList words(smallWordList.toString());
    return words.holds(word);
}

bool isHyphenPrefix(QStringView word) {
    static const WordList prefixes(hyphenPrefixList.toString());
    return prefixes.holds(word);
}

/// The new form of the character at `i`, given the new forms of those before it.
char16_t initialCap(QStringView text, qsizetype i) {
    const auto c = static_cast<char16_t>(unitAt(text, i));
    const int previous = unitAt(text, i - 1);
    if (previous == noUnit || (unitAt(text, i - 2) == u'M' && previous == u'c'))
        return toUpper(c);
    if (isLetterUnit(previous))
        return toLower(c);
    if (previous == u'-')
        return isHyphenPrefix(WordBefore(text, i - 2, true)) ? toLower(c) : toUpper(c);
    if (previous == u'\'')
        return IsQuoteMark(text, i) ? toUpper(c) : toLower(c);
    return toUpper(c);
}

bool isUpperCase(QStringView word) {
    return std::all_of(word.begin(), word.end(), [](QChar c) { return toUpper(c.unicode()) == c.unicode(); });
}

void upperCaseAt(QString &word, qsizetype index) {
    word[index] = toUpper(word[index].unicode());
}

/// True if a selection that starts after `start` units cuts a word in two.
bool startsInsideWord(QStringView text, qsizetype start) {
    const auto isWordPart = [](int unit) { return isLetterUnit(unit) || unit == u'-'; };
    if (start <= 1)
        return false;
    const int first = unitAt(text, start + 1);
    const int before = unitAt(text, start);
    const bool wordBefore =
        isWordPart(before) || (before == u'\'' && isLetterUnit(unitAt(text, start - 1)) && start >= 3);
    return wordBefore && (isWordPart(first) || first == u'\'');
}

/// Builds the title word by word.
class TitleBuilder {
  public:
    TitleBuilder(QStringView text, qsizetype start, qsizetype length, const AddressRules &addresses)
        : m_text(text), m_tokens(text, addresses), m_start(start), m_end(start + length),
          m_position(start + 1), m_lastLetter(length) {
        while (m_lastLetter >= 1 && !isLetterUnit(unitAt(text, m_lastLetter)))
            --m_lastLetter;
        m_result.reserve(length);
    }

    /// The title before its sentences get their capitals. A selection without a letter comes back unchanged.
    QString build() {
        copyToNextLetter();
        while (m_position <= m_end) {
            addWord();
            copyToNextLetter();
        }
        return m_result;
    }

    [[nodiscard]] bool hasWords() const { return !m_isFirstWord; }

  private:
    void copyToNextLetter() {
        const qsizetype from = m_position;
        while (m_position <= m_end && !isLetterUnit(unitAt(m_text, m_position)))
            ++m_position;
        m_result += m_text.sliced(from - 1, m_position - from);
    }

    void addWord() {
        const QStringView source = WordAfter(m_text, m_position, m_end, true);
        QString word = source.size() > 1 && isUpperCase(source) ? source.toString() : toLower(source);
        if ((m_isFirstWord || isLastWord(source.size()) || !isSmallWord(word)) && !followsPrefix() &&
            !m_tokens.isWebOrFileName(m_position))
            upperCaseAt(word, 0);
        if (word.size() > 2 && (word.startsWith(u"Mc") || word.startsWith(u"O'")))
            upperCaseAt(word, 2);
        m_result += word;
        m_previousWord = std::move(word);
        m_isFirstWord = false;
        m_position += source.size();
    }

    /// True if no letter stands between the position start + position + length and the position that equals
    /// the selection's length. For a selection at the text's start that means the last word; further on most
    /// words count as last, and small words get their capital. That is intended.
    [[nodiscard]] bool isLastWord(qsizetype length) const {
        return m_start + m_position + length > m_lastLetter;
    }

    [[nodiscard]] bool followsPrefix() const {
        return m_result.endsWith(u'-') && QStringView(m_result).chopped(1).endsWith(m_previousWord) &&
               isHyphenPrefix(m_previousWord);
    }

    QStringView m_text;
    Tokens m_tokens;
    qsizetype m_start;
    qsizetype m_end;
    qsizetype m_position;
    qsizetype m_lastLetter; // of the last letter up to the selection's length, or 0
    QString m_result;
    QString m_previousWord;
    bool m_isFirstWord = true;
};

} // namespace

QString cTextMethods::InitialCaps(QStringView text, qsizetype start, qsizetype length) const {
    const qsizetype first = qMax<qsizetype>(start, 1);
    const qsizetype last = qMin(start + length - 1, text.size());
    QString changed = text.toString();
    for (qsizetype i = first; i <= last; ++i)
        changed[i - 1] = initialCap(changed, i);
    // The count is always 0; the caller's status text replaces this one at once.
    m_host.setStatus(QStringLiteral("0 characters: initial capitals"));
    return last < first ? QString() : changed.sliced(first - 1, last - first + 1);
}

QString cTextMethods::TitleCase(QStringView text, qsizetype selStart, qsizetype selLength) const {
    const qsizetype start = qBound<qsizetype>(0, selStart, text.size());
    const qsizetype length = qBound<qsizetype>(0, selLength, text.size() - start);
    if (startsInsideWord(text, start)) {
        m_host.warn(QStringLiteral("Please select the whole title"), {});
        return text.sliced(start, length).toString();
    }
    TitleBuilder builder(text, start, length, m_addresses);
    QString title = builder.build();
    if (!builder.hasWords())
        return title;
    title = Capitalise(title, true);
    title.replace(QStringLiteral("with and without"), QStringLiteral("With and Without"),
                  Qt::CaseInsensitive);
    title.replace(QStringLiteral("with & without"), QStringLiteral("With & Without"), Qt::CaseInsensitive);
    return title;
}

} // namespace tolvo
