// SPDX-License-Identifier: MIT
// The tools that other libraries have too, beside those of Python, on random texts.
#include "tests/support/commands.h"
#include "tests/support/print.h"
#include "text/coding.h"
#include "text/html_names.h"
#include "text/letters.h"
#include "text/line_choice.h"
#include "text/line_order.h"
#include "text/line_parts.h"
#include "text/line_sets.h"
#include "text/notation.h"
#include "text/table_cells.h"
#include "text/tables.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>
#include <random>

using namespace Qt::StringLiterals;

namespace tolvo::test {

namespace {

class RandomText {
  public:
    /// Up to 30 of these units; "|" is a line end.
    QString of(const QStringList &units) {
        QString text;
        for (int i = below(30); i > 0; --i)
            text += units.at(below(static_cast<int>(units.size())));
        return text.replace(u'|', u"\r\n"_s);
    }
    bool flag() { return below(2) == 1; }
    int below(int n) { return static_cast<int>(m_random() % static_cast<unsigned>(n)); }

  private:
    std::mt19937 m_random{20261123};
};

/// What Python sees otherwise of these cases.
std::string seenOtherwise(const QJsonArray &cases) {
    const QString script = qEnvironmentVariable("TOLVO_SOURCE") + "/tests/text/against_python.py";
    return outputOf("python3", {script}, QJsonDocument(cases).toJson()).trimmed().toStdString();
}

TEST(AgainstPython, ToolsComeToTheSame) {
    if (!isInstalled("python3"))
        GTEST_SKIP() << "python3 is not installed";
    const QStringList any = {"a",  "B", "1",  " ", "|", "é", "\u0301", "ß", "😀",      "\u4E2D", "&", "<",
                             "\"", "'", "\\", "/", "%", "+", "\t",     "~", "\u0007", "%41",    ";"};
    const QStringList lines = {"a", "b", "|", "|", " "};
    const QStringList cells = {"a", "1", "\"", ",", "b c", "é"};
    RandomText random;
    QJsonArray cases;
    const auto add = [&](const char *tool, const QString &text, const QString &result) {
        cases.append(QJsonArray{tool, text, result});
    };
    for (int i = 0; i < 3000; ++i) {
        const QString text = random.of(any);
        add("htmlEncoded", text, htmlEncoded(text));
        add("urlEncoded", text, urlEncoded(text));
        add("urlDecoded", urlEncoded(text), urlDecoded(urlEncoded(text)).text);
        add("base64Encoded", text, base64Encoded(text));
        add("base64Decoded", base64Encoded(text), base64Decoded(base64Encoded(text)).text);
        add("jsonEscaped", text, jsonEscaped(text));
        const QString escaped = unicodeEscaped(jsonEscaped(text));
        add("unescapedString", escaped, unescapedString(escaped).text);
        add("unicodeEscaped", text, unicodeEscaped(text));
        add("htmlReferencesDecoded", htmlNamed(text), htmlReferencesDecoded(htmlNamed(text)).text);
        const QString mail = quotedPrintableEncoded(text + text + text);
        add("quotedPrintableDecoded", mail, quotedPrintableDecoded(mail).text);
        const QString word = shellQuoted(text);
        add("shellUnquoted", word, shellUnquoted(word).text);
        add("composed", text, composed(text));
        const QString list = random.of(lines);
        add("withoutDuplicates", list, withoutDuplicates(list));
        add("countedLines", list, countedLines(list));
        QStringList rows;
        for (int row = 0; row < 3; ++row)
            rows += "x" + random.of(cells) + "\ty" + random.of(cells) + "\tz";
        const QString table = rows.join(u"\r\n");
        add("csvTable", table, csvTable(table));
        if (readTable(csvTable(table)) != readTable(table))
            ADD_FAILURE() << shown(table);
    }
    for (const QByteArray &entry : htmlNameTable().toByteArray().split(',')) {
        const QString name =
            u'&' + QString::fromLatin1(entry.trimmed().split(' ').first()).remove(u'*').remove(u'!');
        for (const QString &text : {QString(name + u';'), QString(name + u'x'), name})
            add("htmlReferencesDecoded", text, htmlReferencesDecoded(text).text);
    }
    EXPECT_EQ(seenOtherwise(cases), "[]");
}

/// A table with a head as a file of CSV has it, its cells in quotes where they need them and here and there
/// elsewhere.
QString randomCsv(RandomText &random, QChar sign) {
    const QStringList units = {"a",  " ",  "é",    "1",      "\"",      ",",     "|",
                               "\n", "\r", "<br>", "<BR />", "&lt;br>", "&amp;", "\\"};
    const int columns = random.below(3) + 2;
    QStringList rows = {QStringList(columns, u"x"_s).join(sign)};
    for (int row = random.below(5); row > 0; --row) {
        QStringList cells;
        for (int column = 0; column < columns; ++column) {
            const QString cell = random.of(units).left(random.below(15));
            const bool isPlain =
                cell == cell.trimmed() && std::none_of(cell.begin(), cell.end(), [sign](QChar c) {
                    return c == sign || QStringView(u"\"\r\n").contains(c);
                });
            cells += isPlain && random.flag() ? cell : quotedCell(cell);
        }
        rows += cells.join(sign);
    }
    return rows.join(u"\r\n"_s) + (random.flag() ? u"\r\n"_s : QString());
}

QString asJson(const Table &table) {
    QJsonArray rows;
    for (const QStringList &row : table)
        rows += QJsonArray::fromStringList(row);
    return QString::fromUtf8(QJsonDocument(rows).toJson(QJsonDocument::Compact));
}

TEST(AgainstPython, CellsWithLineEndsComeToTheSame) {
    if (!isInstalled("python3"))
        GTEST_SKIP() << "python3 is not installed";
    RandomText random;
    QJsonArray cases;
    for (int i = 0; i < 4000; ++i) {
        const QChar sign = random.flag() ? u',' : u';';
        const QString text = randomCsv(random, sign);
        const QString csv = csvTable(text);
        Table table = readTable(text);
        table.removeAll({}); // the one after the last line end
        cases.append(QJsonArray{"readTable", text, asJson(table), QJsonArray{QString(sign)}});
        cases.append(QJsonArray{"readTable", csv, asJson(table), QJsonArray{u","_s}});
        for (QStringList &row : table)
            row.replaceInStrings(QRegularExpression(u"\r\n|\r|\n"_s), u"\r\n"_s)
                .replaceInStrings(QRegularExpression(u"^ +| +$"_s), {});
        const QString markdown = markdownTable(text);
        EXPECT_EQ(markdown.endsWith(u"\r\n"_s), text.endsWith(u"\r\n"_s)) << shown(text);
        for (const QString &made : {markdown, csvTable(markdown)}) {
            Table again = readTable(made);
            again.removeAll({});
            EXPECT_EQ(again, table) << shown(text);
        }
    }
    EXPECT_EQ(seenOtherwise(cases), "[]");
}

TEST(AgainstPython, LineToolsComeToTheSame) {
    if (!isInstalled("python3"))
        GTEST_SKIP() << "python3 is not installed";
    const QStringList units = {"a",  "A", "b",  "|", "|",      "|",  " ",  ",", "ß",
                               "SS", "é", "中", "😀", "\uFF21", "10", "-9", "\t"};
    RandomText random;
    QJsonArray cases;
    for (int i = 0; i < 4000; ++i) {
        const QString text = random.of(units);
        const auto add = [&](const char *tool, const QJsonArray &settings, const QString &result) {
            cases.append(QJsonArray{tool, text, result, settings});
        };
        const bool a = random.flag();
        const bool b = random.flag();
        const bool c = random.flag();
        const bool d = random.flag();
        const int head = random.below(3);
        const bool byNumber = random.flag();
        add("sortedLines", {a, b, c, head, byNumber},
            sortedLines(text, {.order = byNumber ? SortLinesSettings::Order::Number
                                                 : SortLinesSettings::Order::Characters,
                               .language = {},
                               .head = head,
                               .descending = a,
                               .ignoreCase = b,
                               .unique = c}));
        add("duplicates", {a, b, c, d, byNumber, head == 0},
            withoutDuplicates(text, {a, b, c, d, byNumber, head == 0}));
        const int first = random.below(4) + 1;
        add("everyLine", {a, head + 1, first}, everyLine(text, {a, head + 1, first}));
        const int step = random.below(7) - 3;
        const int width = random.below(4);
        add("around", {head - 1, step, width, a},
            withTextAround(text, {u"<{n} "_s, u"{n}>"_s, head - 1, step, width, a}));
        add("parts", {a, b, c}, splitOrJoined(text, {a, u", "_s, b, c}));
        add("reversed", {}, withWordsReversed(text));
    }
    EXPECT_EQ(seenOtherwise(cases), "[]");
}

} // namespace

} // namespace tolvo::test
