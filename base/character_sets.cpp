// SPDX-License-Identifier: MIT
#include "base/character_sets.h"

#include "base/code_page.h"

namespace tolvo {

namespace {

QString lettersFrom(bool (*accepts)(char16_t)) {
    QString letters;
    for (int code = u'A'; code <= 255; ++code) {
        const char16_t unit = fromAnsi(static_cast<std::uint8_t>(code));
        if (accepts(unit))
            letters += QChar(unit);
    }
    return letters;
}

} // namespace

const QString &SEARCH_CHARS_UPPER() {
    static const QString letters = lettersFrom(isUpperLetter);
    return letters;
}

const QString &SEARCH_CHARS_LOWER() {
    static const QString letters = lettersFrom(isLowerLetter);
    return letters;
}

QString SEARCH_CHARS_DIGIT() {
    return QStringLiteral("0123456789");
}

QString SEARCH_CHARS_ALPHA() {
    return SEARCH_CHARS_UPPER() + SEARCH_CHARS_LOWER();
}

QString SEARCH_CHARS_ALPHANUM() {
    return SEARCH_CHARS_ALPHA() + SEARCH_CHARS_DIGIT();
}

QString SEARCH_CHARS_WORD() {
    return SEARCH_CHARS_ALPHANUM() + u'_';
}

QString SEARCH_CHARS_PUNCTUATION() {
    return QStringLiteral(u"-!\"#$%&'()*+,./:;<=>?@[\\]_`{|}~\u00A1\u00BF");
}

} // namespace tolvo
