// SPDX-License-Identifier: MIT
#include "text/letters.h"

#include "base/normal_form.h"
#include "base/unseen_characters.h"
#include "text/lines.h"

#include <QTextBoundaryFinder>

namespace tolvo {

namespace {

bool losesAccents(QChar::Script script) {
    return script == QChar::Script_Latin || script == QChar::Script_Greek;
}

/// Latin letters that no accent can be taken off, in plain ones; empty for any other.
QStringView plainLetters(char16_t letter) {
    struct Plain {
        char16_t letter;
        const char16_t *plain;
    };
    static constexpr Plain table[] = {
        {u'ß', u"ss"}, {u'ẞ', u"SS"}, {u'æ', u"ae"}, {u'Æ', u"AE"}, {u'œ', u"oe"}, {u'Œ', u"OE"},
        {u'ø', u"o"},  {u'Ø', u"O"},  {u'ł', u"l"},  {u'Ł', u"L"},  {u'đ', u"d"},  {u'Đ', u"D"},
        {u'ð', u"d"},  {u'Ð', u"D"},  {u'þ', u"th"}, {u'Þ', u"TH"}, {u'ħ', u"h"},  {u'Ħ', u"H"},
        {u'ı', u"i"},  {u'ŋ', u"ng"}, {u'Ŋ', u"NG"}, {u'ŧ', u"t"},  {u'Ŧ', u"T"},  {u'ƀ', u"b"},
    };
    for (const Plain &row : table) {
        if (row.letter == letter)
            return row.plain;
    }
    return {};
}

bool isSpecialBlank(QChar unit) {
    return unit.category() == QChar::Separator_Space && unit != u' ';
}

/// Zero-width joiner and non-joiner. They mean something after a letter of a script that joins its letters,
/// and the joiner in an emoji of several.
bool joins(QStringView text, qsizetype at) {
    constexpr char16_t nonJoiner = 0x200C;
    constexpr char16_t joiner = 0x200D;
    if (at == 0 || at + 1 == text.size() || (text[at] != joiner && text[at] != nonJoiner))
        return false;
    const QChar before = text[at - 1];
    const bool emoji =
        before.isLowSurrogate() || before == u'\uFE0F' || before.category() == QChar::Symbol_Other;
    if (emoji)
        return text[at] == joiner;
    return before.script() >= QChar::Script_Arabic && before.script() != QChar::Script_Common;
}

} // namespace

QString withoutAccents(QStringView text) {
    QString result;
    bool base = false; // whether the letter before loses its accents
    for (QChar unit : text) {
        if (unit.category() == QChar::Mark_NonSpacing) {
            if (!base)
                result += unit;
            continue;
        }
        base = losesAccents(unit.script());
        while (base && unit.decompositionTag() == QChar::Canonical)
            unit = unit.decomposition().front();
        const QStringView plain = plainLetters(unit.unicode());
        if (plain.isEmpty())
            result += unit;
        else
            result += plain;
    }
    return result;
}

QString composed(QStringView text) {
    return normalFormC(text);
}

QString withoutLigatures(QStringView text) {
    constexpr char16_t first = 0xFB00;
    constexpr char16_t last = 0xFB06;
    QString result;
    for (const QChar unit : text) {
        if (unit.unicode() >= first && unit.unicode() <= last)
            result += QString(unit).normalized(QString::NormalizationForm_KC);
        else
            result += unit;
    }
    return result;
}

QString withoutUnseen(QStringView text) {
    QString result;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar unit = text[i];
        if (isSpecialBlank(unit))
            result += u' ';
        else if (unit == u'\u2028' || unit == u'\u2029' || unit == u'\u0085')
            result += lineEnd;
        else if (!isUnseen(unit) || unit == u'\r' || unit == u'\n' || joins(text, i))
            result += unit;
    }
    return result;
}

QString reversedCharacters(QStringView text) {
    return changeLines(text, [](QStringView line, QString &result) {
        QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, line.constData(), line.size());
        finder.toEnd();
        for (qsizetype end = line.size(); end > 0;) {
            const qsizetype start = finder.toPreviousBoundary();
            result += line.sliced(start, end - start);
            end = start;
        }
    });
}

} // namespace tolvo
