// SPDX-License-Identifier: MIT
// Every tool of the text engine on a full text area: of ordinary text, and of the worst that can be put
// together.
#include "base/failure.h"
#include "bench/bench.h"
#include "tests/support/operations.h"

#include <QSet>
#include <QStringList>

using namespace tolvo;
using namespace tolvo::bench;

namespace {

/// A word with its own three-letter extension, and so on through all of them.
QString differentAddresses() {
    QString text;
    for (int i = 0; text.size() < fullText; ++i)
        text += QStringLiteral("a.%1%2%3 ")
                    .arg(QChar(u'a' + i / 676 % 26))
                    .arg(QChar(u'a' + i / 26 % 26))
                    .arg(QChar(u'a' + i % 26));
    return text.first(fullText);
}

QStringList worstTexts() {
    QStringList texts;
    for (const char16_t *piece :
         {u"a",      u"é",     u" ",    u".",    u",",      u"'",      u"\"",
          u"(",      u")",     u"&",    u"&#",   u"%41",    u"\t",     u"\r",
          u"\n",     u"\r\n",  u"-",    u">",    u"|",      u"*",      u"\u00A0",
          u"a\r\n",  u" \r\n", u"a.",   u"a'",   u"s'",     u"a\"",    u"a.b ",
          u"x.com ", u"z ",    u"a (",  u"(s) ", u"( ",     u"&amp;",  u"&#65;",
          u"&#x41;", u"&#1",   u"&#2a", u"1.",   u"1.\r\n", u"i.\r\n", u"a,",
          u"re-",    u"mc'",   u"! ",   u"/",    u"a\t",    u"  a",    u"\tb\u00A0\r\n",
          u"I.a:",   u"x1x"})
        texts += repeated(QString::fromUtf16(piece));
    texts += differentAddresses();
    texts += repeated(QStringLiteral("&#1x1a"))
                 .replace(6, fullText - 6, repeated(QStringLiteral("1a"), fullText - 6));
    texts += QString(fullText - 1, u'a') + u'.';
    return texts;
}

/// How a text begins, fit to print.
std::string beginning(const QString &text) {
    return "worst of: " +
           text.left(8).toUtf8().replace("\r", "\\r").replace("\n", "\\n").replace("\t", "\\t").toStdString();
}

/// A text that the tool refuses counts with the time that it takes to find out.
double timeOf(const test::Operation &operation, const cTextMethods &engine, const QString &text, int runs) {
    return milliseconds(
        [&] {
            try {
                (void)operation.run(engine, text);
            } catch (const Failure &) {
            }
        },
        runs);
}

/// Those that compare lines or words: they have killer sequences.
bool isSort(const test::Operation &operation) {
    return operation.row->refusal.message != nullptr && operation.name.compare(0, 5, "soREV") != 0;
}

void measureWorst(const test::Operation &operation, const cTextMethods &engine, const QStringList &texts,
                  Table &table) {
    double worst = 0;
    const QString *worstText = &texts.first();
    for (const QString &text : texts) {
        const double once = timeOf(operation, engine, text, 1);
        const double time = once > worst ? std::min(once, timeOf(operation, engine, text, 5)) : once;
        if (time > worst) {
            worst = time;
            worstText = &text;
        }
    }
    table.add(operation.name, worst, isSort(operation) ? 100 : 16, "ms", beginning(*worstText));
}

} // namespace

int main() {
    test::SilentHost host;
    static const QSet<QString> extensions = {QStringLiteral("txt"), QStringLiteral("exe"),
                                             QStringLiteral("pdf")};
    const cTextMethods engine(
        host, [](const QString &extension) { return extensions.contains(extension.toLower()); });
    Table ordinary("Text tools, 65,535 characters of ordinary text");
    const QString text = ordinaryText();
    const std::vector<test::Operation> operations = test::operations();
    for (const test::Operation &operation : operations)
        ordinary.add(operation.name, timeOf(operation, engine, text, 15), 4, "ms");
    Table worst("Text tools, the worst 65,535 characters");
    const QStringList texts = worstTexts();
    for (const test::Operation &operation : operations)
        measureWorst(operation, engine, texts, worst);
    return ordinary.exitCode() | worst.exitCode();
}
