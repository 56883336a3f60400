// SPDX-License-Identifier: MIT
#include "tests/text/step_by_step.h"

#include "base/code_page.h"
#include "base/numbers.h"
#include "text/word_rules.h"

#include <utility>

namespace tolvo::test::stepByStep {

namespace {

using Position = qsizetype;
const QString eol = QStringLiteral("\r\n");
constexpr auto white = u" \t\u00A0\r\n";

/// The empty string outside the text.
QString mid(const QString &text, Position position, Position length = 1) {
    const Position start = qMax<Position>(position, 1);
    return text.mid(start - 1, qMax<Position>(length - (start - position), 0));
}

bool in(const QString &c, const char16_t *set) {
    return !c.isEmpty() && QStringView(set).contains(c);
}

const auto &alpha = IsAlpha;
const auto digit = [](const QString &c) { return in(c, u"0123456789"); };

QString stripped(QString s, const char16_t *front, const char16_t *back) {
    while (in(s.left(1), front))
        s.remove(0, 1);
    while (in(s.right(1), back))
        s.chop(1);
    return s;
}

QString wordAt(const QString &text, Position i) {
    Position start = i;
    do
        --start;
    while (start >= 2 && !in(mid(text, start), u" \r\n\t"));
    Position end = i;
    do
        ++end;
    while (end < text.size() && !in(mid(text, end), u" \r\n\t"));
    start = qMax<Position>(start, 1);
    return stripped(mid(text, start, end - start + 1), white, white);
}

// The rules for a single word have tests of their own.
bool address(const QString &word) {
    AddressRules rules([](const QString &extension) { return extension == u"txt"; });
    rules.setTopLevelDomains(QStringLiteral(",com,org,"));
    return rules.IsWebOrFileName(word);
}

bool listed(const QString &word, const char16_t *list) {
    return QString::fromUtf16(list).contains(u',' + word + u',', Qt::CaseInsensitive);
}
// As far as the texts hold them.
constexpr auto prefixes = u"ante,anti,non,re,un,under";
constexpr auto small = u",a,and,as,at,if,in,the,with,";

/// SentenceCase and Capitalise: one lowers, the other doesn't.
QString sentences(const QString &text, bool lowers, bool colon) {
    QString result;
    QString next;
    bool nextIsUpper = true;
    for (Position i = 1; i <= text.size(); ++i) {
        const QString ahead = mid(text, i + 1);
        next = i < text.size() || !lowers ? ahead : next;
        QString c = nextIsUpper ? toUpper(mid(text, i)) : lowers ? toLower(mid(text, i)) : mid(text, i);
        nextIsUpper = nextIsUpper && !alpha(c);
        result +=
            c == u"i" && !alpha(mid(text, i - 1)) && !alpha(next) && next != u"." ? QStringLiteral("I") : c;
        const QString word = wordAt(text, i);
        if ((in(c, u".?!") || (colon && c == u":")) && !digit(ahead) && !IsAbbreviation(word) &&
            (lowers ? !address(word) : !alpha(ahead)))
            nextIsUpper = true;
    }
    return result;
}

} // namespace

QString SentenceCase(const QString &text) {
    return sentences(text, true, false);
}

QString Capitalise(const QString &text, bool colon) {
    return sentences(text, false, colon);
}

QString InitialCaps(QString text, Position start, Position length) {
    for (Position i = start; i < start + length; ++i) {
        const QString c = mid(text, i);
        const QString prev = mid(text, i - 1);
        bool up = i == 1 || !alpha(prev);
        if (prev == u"-")
            up = !listed(WordBefore(text, i - 2, true).toString(), prefixes);
        if (prev == u"'")
            up = IsQuoteMark(text, i);
        if (i > 2 && mid(text, i - 2, 2) == u"Mc")
            up = true;
        text.replace(i - 1, 1, up ? toUpper(c) : toLower(c));
    }
    return mid(text, start, length);
}

QString TitleCase(const QString &text, Position s, Position n) {
    const QString first = mid(text, s + 1);
    const QString b1 = mid(text, s);
    if (s > 1 && (alpha(b1) || b1 == u"-" || (b1 == u"'" && alpha(mid(text, s - 1)) && s >= 3)) &&
        (alpha(first) || first == u"-" || first == u"'"))
        return mid(text, s + 1, n);
    QString result;
    QString previous;
    bool firstWord = true;
    for (Position p = s + 1;;) {
        for (; p < s + n + 1 && !alpha(mid(text, p)); ++p)
            result += mid(text, p);
        if (p > s + n)
            break;
        QString word = WordAfter(text, p, s + n, true).toString();
        const Position l = word.size();
        const bool lastWord = NoLettersBetween(text, s + p + l, n);
        word = l == 1 || word != toUpper(word) ? toLower(word) : word;
        if ((!listed(word, small) || firstWord || lastWord) && !address(wordAt(text, p)) &&
            !(result.endsWith(previous + u'-') && listed(previous, prefixes)))
            word.replace(0, 1, toUpper(word.left(1)));
        if (l > 2 && (word.startsWith(u"Mc") || word.startsWith(u"O'")))
            word.replace(2, 1, toUpper(mid(word, 3)));
        p += l;
        result += word;
        previous = word;
        firstWord = false;
    }
    return firstWord ? result
                     : Capitalise(result, true)
                           .replace(QLatin1StringView("with and without"),
                                    QLatin1StringView("With and Without"), Qt::CaseInsensitive);
}

QString SingleSpace(QString text) {
    QStringList done;
    for (const QString &line : text.replace(QChar(0xA0), u' ').split(eol)) {
        QString t = stripped(line, white, white);
        const Position f = line.indexOf(t) + 1;
        for (const auto &[pair, kept] : {std::pair("  ", " "), {"\t ", "\t"}, {" \t", "\t"}}) {
            while (t.contains(QLatin1StringView(pair)))
                t.replace(t.indexOf(QLatin1StringView(pair)), 2, QLatin1StringView(kept));
        }
        done += line.left(f - 1) + t;
    }
    return done.join(eol);
}

QString removeExtraLines(const QString &text, bool single, bool multiple) {
    const QStringList line = text.split(eol);
    const auto blank = [&](Position i) { return stripped(line[i], white, white).isEmpty(); };
    QString out;
    for (Position i = 0; i < line.size(); ++i) {
        out += !blank(i) ? stripped(line[i], u"", u" ") + eol : single ? QString() : eol;
        if (blank(i) && i < line.size() - 1 && blank(i + 1)) {
            do {
                ++i;
                out += multiple ? QString() : eol;
            } while (i != line.size() - 1 && blank(i));
            --i;
        }
    }
    while (out.endsWith(eol))
        out.chop(2);
    return stripped(out, u"", u" ");
}

QString CurlyQuotes(const QString &text) {
    bool inDouble = false;
    bool inSingle = false;
    QString result;
    for (Position i = 1; i <= text.size(); ++i) {
        const QString c = mid(text, i);
        const bool marks = c == u"\"" || (c == u"'" && IsQuoteMark(text, i + 1));
        bool &open = c == u"'" ? inSingle : inDouble;
        result += c == u"\""  ? QChar(open ? 0x201D : 0x201C)
                  : c == u"'" ? QChar(marks && !open ? 0x2018 : 0x2019)
                              : c[0];
        open = open != marks;
    }
    for (const auto &[from, to] : {std::pair("---", 0x2014), {"--", 0x2013}, {"...", 0x2026}})
        result.replace(QLatin1StringView(from), QString(QChar(to)));
    return result;
}

QString HTMLdecode(QString text) {
    QString mark = QStringLiteral("XXXXX");
    for (Position p = text.indexOf(u"&#") + 1; p > 0; p = text.indexOf(u"&#", p - 1) + 1) {
        text.remove(p - 1, 2);
        while (in(mid(text, p), u"0123456789xX") && !mark.isEmpty()) {
            Position q = p;
            while (mid(text, q) != u";" && q < text.size())
                ++q;
            mark = mid(text, p, q - p);
            QString hex = mark.mid(1);
            if (mark.startsWith(u'x', Qt::CaseInsensitive) && IsHex(hex)) {
                mark = QString::number(HexToNumber(hex));
                p = q - mark.size();
            }
            if (!IsNumber(mark)) {
                p += 3;
                continue;
            }
            int code = static_cast<int>(qMin(ValueOf(mark), 1e6));
            code -= code >= 65280 && code < 65375 ? 65248 : 0;
            mark = code < 256 ? QString(QChar(fromAnsi(static_cast<std::uint8_t>(code)))) : QString();
            text = mid(text, 1, p - 1) + mark + text.mid(q);
            p = qMax<Position>(p, 1) + mark.size();
        }
    }
    for (const auto &[name, code] :
         {std::pair("quot", 0x22), {"amp", 0x26}, {"lt", 0x3C}, {"gt", 0x3E}, {"bull", 0x2022}})
        text.replace(u'&' + QLatin1StringView(name) + u';', QString(QChar(code)), Qt::CaseInsensitive);
    return text.replace(QLatin1StringView("&dagger;"), QChar(0x2020))
        .replace(QLatin1StringView("&Dagger;"), QChar(0x2020));
}

QString checkPunctuation(const QString &text) {
    QString result;
    bool inDouble = false;
    bool inSingle = false;
    for (Position i = 1; i <= text.size(); ++i) {
        const QString c = mid(text, i);
        const QString next = mid(text, i + 1);
        const QString prev = mid(text, i - 1);
        const QString word = wordAt(text, i);
        const auto nextIn = [&](const char16_t *set) { return next.isEmpty() || in(next, set); };
        const bool isAddress = in(c, u".:") && (next == u"-" || address(word));
        const bool quotes = c == u"\"" || (c == u"'" && IsQuoteMark(text, i + 1));
        bool &open = c == u"'" ? inSingle : inDouble;
        if ((in(c, u".,?!;:") && (c != u"." || !isAddress)) || in(c, u")]}") ||
            (quotes && open && prev == u" "))
            result = stripped(result, u"", u" ");
        bool behind = false;
        if (in(c, u".,?!;:"))
            behind = !nextIn(u" \r\"')]}.,?!;:") && !(digit(next) && digit(prev)) && !isAddress &&
                     !(c == u"." && IsAbbreviation(word));
        if (in(c, u")]}"))
            behind = !nextIn(u"'\".,?!;: \r");
        if (quotes && open)
            behind = !nextIn(u" \r") && (c == u"'" ? next[0] > u')' : next != u")");
        if (in(c, u"([{")) {
            while (mid(text, i + 1) == u" ")
                ++i;
            const QString token = toLower(wordAt(text, i));
            if (!prev.isEmpty() && prev[0] > u'\'' && !token.endsWith(u"(s)") && !token.endsWith(u"()"))
                result += u' ';
        }
        if (quotes && !open) {
            result += prev.isEmpty() || in(prev, u"\n (\t") ? QString() : QStringLiteral(" ");
            i += next == u" " ? 1 : 0;
        }
        open = open != quotes;
        result += behind ? c + u' ' : c;
        if (isAddress) {
            QString one = mid(text, ++i);
            do {
                result += one;
                one = mid(text, ++i);
            } while (i <= text.size() && !(one == u"'" && inSingle) && !in(one, u" \n\r\t\"*|"));
            --i;
        }
    }
    return result;
}

} // namespace tolvo::test::stepByStep
