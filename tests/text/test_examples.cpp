// SPDX-License-Identifier: MIT
// The rows of examples.txt, which says what they are.
#include "tests/text/engine.h"

#include <QFile>
#include <functional>
#include <map>

using namespace tolvo;
using namespace tolvo::test;
using namespace Qt::StringLiterals;

namespace {

QString textOf(QString picture) {
    return picture.replace(u'|', u"\r\n"_s)
        .replace(u'␍', u'\r')
        .replace(u'␊', u'\n')
        .replace(u'⇥', u'\t')
        .replace(u'⍽', u'\u00A0');
}

using Examples = Engine;

TEST_F(Examples, comeOutAsTheRulesSay) {
    engine.setTopLevelDomains(u",com,org,"_s);
    const std::map<QString, std::function<QString(const QString &)>> tools = {
        {u"SentenceCase"_s, [&](const QString &text) { return engine.SentenceCase(text); }},
        {u"Capitalise"_s, [&](const QString &text) { return engine.Capitalise(text, false); }},
        {u"TitleCase"_s,
         [&](QString text) {
             const qsizetype start = text.indexOf(u'«');
             const qsizetype length = text.indexOf(u'»') - start - 1;
             return engine.TitleCase(text.remove(u'«').remove(u'»'), start, length);
         }},
        {u"checkPunctuation"_s, [&](const QString &text) { return engine.checkPunctuation(text, true); }},
        {u"HTMLdecode"_s, [&](const QString &text) { return engine.HTMLdecode(text); }},
        {u"WordWrap"_s, [&](const QString &text) {
             const QString settings = text.section(u':', 0, 0);
             return engine.WordWrap(text.mid(settings.size() + 2), settings.section(u' ', 0, 0).toInt(),
                                    settings.contains(u'h'), settings.contains(u't'), false);
         }}};
    QFile file(qEnvironmentVariable("TOLVO_SOURCE") + u"/tests/text/examples.txt"_s);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    int rows = 0;
    QString tool;
    for (const QString &line : QString::fromUtf8(file.readAll()).split(u'\n')) {
        const QStringList sides = line.split(u'→');
        if (sides.size() == 2) {
            EXPECT_EQ(tools.at(tool)(textOf(sides[0])), textOf(sides[1])) << shown(sides[0]);
            ++rows;
        } else if (line.startsWith(u'[')) {
            tool = line.sliced(1).chopped(1);
        }
    }
    EXPECT_EQ(rows, 319);
}

} // namespace
