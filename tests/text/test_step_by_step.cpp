// SPDX-License-Identifier: MIT
// The tools with the trickiest rules once more, step by step and without a thought for their cost: everything
// is searched for anew at each character. The engine is compared with them on short random texts made of what
// the rules look at.
#include "base/code_page.h"
#include "base/numbers.h"
#include "tests/text/engine.h"

#include <random>
#include <utility>

using namespace tolvo;
using namespace tolvo::test;
using namespace Qt::StringLiterals;

namespace {

namespace stepByStep {

// Positions count from 1.
using Position = qsizetype;
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
    rules.setTopLevelDomains(u",com,org,"_s);
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
        result += c == u"i" && !alpha(mid(text, i - 1)) && !alpha(next) && next != u"." ? u"I"_s : c;
        const QString word = wordAt(text, i);
        if ((in(c, u".?!") || (colon && c == u":")) && !digit(ahead) && !IsAbbreviation(word) &&
            (lowers ? !address(word) : !alpha(ahead)))
            nextIsUpper = true;
    }
    return result;
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
                     : sentences(result, false, true)
                           .replace(QLatin1StringView("with and without"),
                                    QLatin1StringView("With and Without"), Qt::CaseInsensitive);
}

QString HTMLdecode(QString text) {
    QString mark = u"XXXXX"_s;
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
            result += prev.isEmpty() || in(prev, u"\n (\t") ? QString() : u" "_s;
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

} // namespace stepByStep

class StepByStep : public Engine {
  protected:
    StepByStep() { engine.setTopLevelDomains(u",com,org,"_s); }

    /// Calls `check(text)` for random texts put together from the pieces.
    template <class Check>
    void eachText(const QStringList &pieces, int times, Check check) {
        std::mt19937 random(20240229);
        for (int i = 0; i < times && !HasFailure(); ++i) {
            QString text;
            for (unsigned length = random() % 14; length > 0; --length)
                text += pieces[static_cast<qsizetype>(random() % static_cast<unsigned>(pieces.size()))];
            SCOPED_TRACE(shown(text));
            check(text);
        }
    }

    static QStringList pieces(const char16_t *list) {
        QStringList result = QString::fromUtf16(list).split(u'~');
        return result << u"\r\n"_s << u" "_s;
    }
};

constexpr auto prose =
    u"a~i~I~Is~mc~Mc~O'~s~t~re~S~.~.~.~...~…~?~!~:~;~,~'~'~\"~-~(~)~(s)~()~[~]~{~1~2~x.com~b.txt~www.~/"
    u"~\\~@~\t~"
    u" ~ ~  ~\u00A0~\r~\n~é~ƒ~ß~ÿ~µ~the~with~non-~ante-~under-~anti~and~with and without~*~|~ж";

TEST_F(StepByStep, sentencesAndTitles) {
    eachText(pieces(prose), 3000, [this](const QString &text) {
        EXPECT_EQ(engine.SentenceCase(text), stepByStep::sentences(text, true, false));
        EXPECT_EQ(engine.Capitalise(text, false), stepByStep::sentences(text, false, false));
        for (const qsizetype start : {qsizetype{0}, text.size() / 3, text.size() / 2}) {
            const qsizetype length = text.size() - start - text.size() / 5;
            EXPECT_EQ(engine.TitleCase(text, start, length), stepByStep::TitleCase(text, start, length))
                << start;
        }
    });
}

TEST_F(StepByStep, punctuation) {
    eachText(pieces(prose), 3000, [this](const QString &text) {
        EXPECT_EQ(engine.checkPunctuation(text, true), stepByStep::checkPunctuation(text));
    });
}

TEST_F(StepByStep, entities) {
    const auto list = u"&#~&#~&~#~x~X~;~;~;~0~6~65~233~8212~65281~f~FFFFF~zz~a~&amp;~&AMP;~amp;~lt;~quot;~&"
                      u"gt;~&bull;~&dagger;~&DAGGER;~&Dagger;";
    eachText(pieces(list), 3000, [this](const QString &text) {
        QString expected;
        try {
            expected = stepByStep::HTMLdecode(text);
        } catch (const Failure &failure) {
            return expectFailure(failure.number(), [&] { (void)engine.HTMLdecode(text); });
        }
        EXPECT_EQ(engine.HTMLdecode(text), expected);
    });
}

} // namespace
