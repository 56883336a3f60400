// SPDX-License-Identifier: MIT
#include "powerbuttons/ui/character_index.h"

#include <QStringList>
#include <array>
#include <unicode/uchar.h>

namespace tolvo {

namespace {

/// Blocks begin and end at multiples of this.
constexpr UChar32 blockStep = 16;

/// Everyday words and the word of the names to look for instead.
struct Synonym {
    const char *word;
    const char *name;
};
constexpr std::array synonyms{
    Synonym{"MAIL", "ENVELOPE"},     Synonym{"TICK", "CHECK"},        Synonym{"BIN", "WASTEBASKET"},
    Synonym{"TRASH", "WASTEBASKET"}, Synonym{"PHONE", "TELEPHONE"},   Synonym{"SMILEY", "SMILING"},
    Synonym{"DOT", "BULLET"},        Synonym{"LIGHTNING", "VOLTAGE"}, Synonym{"PARAGRAPH", "PILCROW"},
    Synonym{"RETURN", "CARRIAGE"},   Synonym{"TAB", "TABULATION"},
};

bool isVisible(UChar32 character) {
    return u_isgraph(character) != 0;
}

QString blockName(int code) {
    const char *name = u_getPropertyValueName(UCHAR_BLOCK, code, U_LONG_PROPERTY_NAME);
    return QString::fromLatin1(name).replace(u'_', u' ');
}

/// The character that a query is, or whose code it is; 0 for any other query.
char32_t characterMeant(const QString &query) {
    const QList<uint> units = query.toUcs4();
    if (units.size() == 1)
        return isVisible(static_cast<UChar32>(units.first())) ? units.first() : 0;
    QString digits = query;
    if (digits.startsWith(QLatin1StringView("U+"), Qt::CaseInsensitive) ||
        digits.startsWith(QLatin1StringView("0x"), Qt::CaseInsensitive))
        digits.remove(0, 2);
    bool isCode = false;
    const uint code = digits.toUInt(&isCode, 16);
    return isCode && code <= UCHAR_MAX_VALUE && isVisible(static_cast<UChar32>(code)) ? code : 0;
}

struct Search {
    QList<QByteArrayList> words; ///< each word with its synonyms, " " in front
    QList<char32_t> found;
    qsizetype limit = 0;

    [[nodiscard]] bool matches(const QByteArray &name) const {
        for (const QByteArrayList &alternatives : words) {
            bool any = false;
            for (const QByteArray &word : alternatives)
                any = any || name.contains(word);
            if (!any)
                return false;
        }
        return true;
    }
};

UBool visitName(void *context, UChar32 character, UCharNameChoice, const char *name, int32_t length) {
    auto &search = *static_cast<Search *>(context);
    if (isVisible(character) && search.matches(' ' + QByteArray(name, length)) &&
        !search.found.contains(static_cast<char32_t>(character)))
        search.found.append(static_cast<char32_t>(character));
    return search.found.size() < search.limit;
}

} // namespace

QList<CharacterBlock> characterBlocks() {
    QList<CharacterBlock> blocks;
    int open = UBLOCK_NO_BLOCK;
    for (UChar32 first = 0; first <= UCHAR_MAX_VALUE; first += blockStep) {
        const int code = ublock_getCode(first);
        if (code == UBLOCK_NO_BLOCK)
            continue;
        const auto last = static_cast<char32_t>(first + blockStep - 1);
        if (code == open)
            blocks.last().last = last;
        else
            blocks.append({blockName(code), static_cast<char32_t>(first), last});
        open = code;
    }
    blocks.removeIf([](const CharacterBlock &block) {
        for (char32_t character = block.first; character <= block.last; ++character) {
            if (isVisible(static_cast<UChar32>(character)))
                return false;
        }
        return true;
    });
    return blocks;
}

QList<char32_t> charactersOf(const CharacterBlock &block) {
    QList<char32_t> characters;
    for (char32_t character = block.first; character <= block.last; ++character) {
        if (isVisible(static_cast<UChar32>(character)))
            characters.append(character);
    }
    return characters;
}

QList<char32_t> findCharacters(const QString &query, int limit) {
    Search search;
    search.limit = limit;
    const QString wanted = query.simplified().toUpper();
    if (const char32_t meant = characterMeant(query.trimmed()); meant != 0)
        search.found.append(meant);
    if (wanted.size() < 2)
        return search.found;
    for (const QString &word : wanted.split(u' ')) {
        QByteArrayList alternatives{' ' + word.toLatin1()};
        for (const Synonym &synonym : synonyms) {
            if (word == QLatin1StringView(synonym.word))
                alternatives.append(' ' + QByteArray(synonym.name));
        }
        search.words.append(alternatives);
    }
    UErrorCode error = U_ZERO_ERROR;
    u_enumCharNames(0, UCHAR_MAX_VALUE + 1, visitName, &search, U_UNICODE_CHAR_NAME, &error);
    return search.found;
}

} // namespace tolvo
