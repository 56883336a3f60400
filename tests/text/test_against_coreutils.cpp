// SPDX-License-Identifier: MIT
// Where the engine and the shell's own tools must agree, on plain ASCII texts.
#include "tests/support/commands.h"
#include "tests/text/engine.h"

#include <QHash>
#include <QRegularExpression>
#include <random>

using namespace tolvo;
using namespace tolvo::test;
using namespace Qt::StringLiterals;

namespace {

/// What a command makes of lines that end in LF, as CR LF text without a last line end.
QString runCommand(const QString &command, const QStringList &arguments, const QString &text) {
    const QByteArray output = outputOf(u"env"_s, QStringList{u"LC_ALL=C"_s, command} + arguments,
                                       (QString(text).remove(u'\r') + u'\n').toLatin1());
    return QString::fromLatin1(output).chopped(1).replace(u'\n', u"\r\n"_s);
}

class AgainstCoreutils : public Engine {
  protected:
    /// Lines that differ in more than case, of letters, blanks inside and TABs.
    static QString someLines(int count, bool withTabs) {
        std::mt19937 random(3);
        QStringList texts;
        for (int i = 0; i < count; ++i) {
            QString line;
            for (auto left = 1 + random() % 9; left > 0; --left)
                line += QChar((random() % 2 == 0 ? u'A' : u'a') + static_cast<char16_t>(random() % 26));
            if (withTabs)
                line.insert(static_cast<qsizetype>(random()) % line.size(), u'\t');
            texts.append(line + u' ' + QString::number(i));
        }
        return texts.join(u"\r\n"_s);
    }
};

TEST_F(AgainstCoreutils, sort) {
    const QString text = someLines(500, false);
    EXPECT_EQ(engine.Sort(text), runCommand(u"sort"_s, {u"-f"_s}, text));
    const QString numbers = QString(text).replace(u' ', QString()).remove(QRegularExpression(u"[A-Za-z]"_s));
    EXPECT_EQ(engine.Numsort(numbers), runCommand(u"sort"_s, {u"-n"_s}, numbers));
}

TEST_F(AgainstCoreutils, tacAndExpand) {
    const QString text = someLines(500, true);
    EXPECT_EQ(engine.SortReverse(text), runCommand(u"tac"_s, {}, text));
    EXPECT_EQ(engine.Tab2space(text, 0, 8), runCommand(u"expand"_s, {}, text));
}

TEST_F(AgainstCoreutils, nl) {
    const QString text = someLines(120, false);
    const QStringList arguments = u"-b a -n rn -w 3 -v 5 -i 7 -s"_s.split(u' ') + QStringList{u" "_s};
    EXPECT_EQ(engine.LineNumber(text, 5, 7, 1, true, true, true), runCommand(u"nl"_s, arguments, text));
}

TEST_F(AgainstCoreutils, wc) {
    // Words of letters alone count alike; the command counts line ends as one character each.
    const QString text = someLines(500, true).remove(QRegularExpression(u"[0-9]"_s));
    const auto counted = [&text](const char *option) {
        return runCommand(u"wc"_s, {QString::fromLatin1(option)}, text).trimmed().toInt();
    };
    QHash<QString, QString> rows;
    for (const StatisticsRow &row : engine.statistics(text, u"").rows)
        rows.insert(row.name, row.fullText);
    EXPECT_EQ(rows.value(u"Words"_s).toInt(), counted("-w"));
    EXPECT_EQ(rows.value(u"Total lines"_s).toInt(), counted("-l"));
    EXPECT_EQ(rows.value(u"Characters"_s).toInt(), counted("-m") - counted("-l"));
}

} // namespace
