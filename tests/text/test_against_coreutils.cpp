// SPDX-License-Identifier: MIT
// Where the engine and the shell's own tools must agree, on plain ASCII texts.
#include "tests/text/engine.h"

#include <QHash>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <random>

using namespace tolvo;
using namespace tolvo::test;

namespace {

/// What a command makes of lines that end in LF, as CR LF text without a last line end.
QString runCommand(const QString &command, const QStringList &arguments, const QString &text) {
    QProcess process;
    process.setProcessEnvironment([] {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C"));
        return environment;
    }());
    process.start(command, arguments);
    process.write((QString(text).remove(u'\r') + u'\n').toLatin1());
    process.closeWriteChannel();
    EXPECT_TRUE(process.waitForFinished());
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
    return QString::fromLatin1(process.readAllStandardOutput())
        .chopped(1)
        .replace(u'\n', QStringLiteral("\r\n"));
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
        return texts.join(QStringLiteral("\r\n"));
    }
};

#define SKIP_WITHOUT(command)                                                                                \
    if (QStandardPaths::findExecutable(QStringLiteral(command)).isEmpty())                                   \
    GTEST_SKIP() << command " is missing"

TEST_F(AgainstCoreutils, sort) {
    SKIP_WITHOUT("sort");
    const QString text = someLines(500, false);
    EXPECT_EQ(engine.Sort(text), runCommand(QStringLiteral("sort"), {QStringLiteral("-f")}, text));
    const QString numbers =
        QString(text).replace(u' ', QString()).remove(QRegularExpression(QStringLiteral("[A-Za-z]")));
    EXPECT_EQ(engine.Numsort(numbers), runCommand(QStringLiteral("sort"), {QStringLiteral("-n")}, numbers));
}

TEST_F(AgainstCoreutils, tac) {
    SKIP_WITHOUT("tac");
    const QString text = someLines(500, false);
    EXPECT_EQ(engine.SortReverse(text), runCommand(QStringLiteral("tac"), {}, text));
}

TEST_F(AgainstCoreutils, expand) {
    SKIP_WITHOUT("expand");
    const QString text = someLines(500, true);
    EXPECT_EQ(engine.Tab2space(text, 0, 8), runCommand(QStringLiteral("expand"), {}, text));
}

TEST_F(AgainstCoreutils, nl) {
    SKIP_WITHOUT("nl");
    const QString text = someLines(120, false);
    const QStringList arguments =
        QStringLiteral("-b a -n rn -w 3 -v 5 -i 7 -s").split(u' ') + QStringList{QStringLiteral(" ")};
    EXPECT_EQ(engine.LineNumber(text, 5, 7, 1, true, true, true),
              runCommand(QStringLiteral("nl"), arguments, text));
}

TEST_F(AgainstCoreutils, wc) {
    SKIP_WITHOUT("wc");
    // Words of letters alone count alike; the command counts line ends as one character each.
    const QString text = someLines(500, true).remove(QRegularExpression(QStringLiteral("[0-9]")));
    const auto counted = [&text](const char *option) {
        return runCommand(QStringLiteral("wc"), {QString::fromLatin1(option)}, text).trimmed().toInt();
    };
    QHash<QString, QString> rows;
    for (const StatisticsRow &row : engine.statistics(text, u"").rows)
        rows.insert(row.name, row.fullText);
    EXPECT_EQ(rows.value(QStringLiteral("Words")).toInt(), counted("-w"));
    EXPECT_EQ(rows.value(QStringLiteral("Total lines")).toInt(), counted("-l"));
    EXPECT_EQ(rows.value(QStringLiteral("Characters")).toInt(), counted("-m") - counted("-l"));
}

} // namespace
