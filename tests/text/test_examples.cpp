// SPDX-License-Identifier: MIT
// The rows of examples.txt, which says what they are.
#include "tests/support/examples.h"
#include "tests/text/engine.h"

#include <map>

using namespace tolvo;
using namespace tolvo::test;
using namespace Qt::StringLiterals;

namespace {

struct Examples : Engine {
    /// A tool that takes nothing but the text.
    using Tool = QString (cTextMethods::*)(QStringView) const;
    const std::map<QString, Tool> tools = {{u"ReverseCase"_s, &cTextMethods::ReverseCase},
                                           {u"SentenceCase"_s, &cTextMethods::SentenceCase},
                                           {u"TrimTrail"_s, &cTextMethods::TrimTrail},
                                           {u"LTrimWhiteSpace"_s, &cTextMethods::LTrimWhiteSpace},
                                           {u"TrimWhiteSpace"_s, &cTextMethods::TrimWhiteSpace},
                                           {u"TrimStopChars"_s, &cTextMethods::TrimStopChars},
                                           {u"TrimQuotes"_s, &cTextMethods::TrimQuotes},
                                           {u"SingleSpace"_s, &cTextMethods::SingleSpace},
                                           {u"Spaces2tab"_s, &cTextMethods::Spaces2tab},
                                           {u"RegularEOL"_s, &cTextMethods::RegularEOL},
                                           {u"Paragraph"_s, &cTextMethods::Paragraph},
                                           {u"CurlyQuotes"_s, &cTextMethods::CurlyQuotes},
                                           {u"URLdecode"_s, &cTextMethods::URLdecode},
                                           {u"HTMLdecode"_s, &cTextMethods::HTMLdecode},
                                           {u"PlainChars"_s, &cTextMethods::PlainChars},
                                           {u"Sort"_s, &cTextMethods::Sort},
                                           {u"Numsort"_s, &cTextMethods::Numsort},
                                           {u"KeywordSort"_s, &cTextMethods::KeywordSort},
                                           {u"SortReverse"_s, &cTextMethods::SortReverse},
                                           {u"removeNumbers"_s, &cTextMethods::removeNumbers},
                                           {u"removeBullets"_s, &cTextMethods::removeBullets},
                                           {u"RemoveLineNumbers"_s, &cTextMethods::RemoveLineNumbers}};

    QString result(const QString &tool, QString text) {
        if (tools.count(tool) > 0)
            return (engine.*tools.at(tool))(text);
        if (tool == u"Capitalise")
            return engine.Capitalise(text, false);
        if (tool == u"smartMatch")
            return engine.smartMatch(text, u"world");
        if (tool == u"InitialCaps")
            return engine.InitialCaps(text, 1, text.size());
        if (tool == u"TitleCase") {
            const qsizetype start = text.indexOf(u'«');
            const qsizetype length = text.indexOf(u'»') - start - 1;
            return engine.TitleCase(text.remove(u'«').remove(u'»'), start, length);
        }
        if (tool == u"Indent")
            return engine.Indent(text, u"> ");
        if (tool == u"Unindent")
            return engine.Unindent(text, u"> ");
        if (tool == u"statistics") {
            QStringList column;
            for (const StatisticsRow &row : engine.statistics(text, {}).rows)
                column += row.fullText;
            return column.join(u' ');
        }
        const QStringList settings = text.section(u':', 0, 0).split(u' ');
        text = text.section(u": "_s, 1);
        const int first = settings[0].toInt();
        const QString &flags = settings.last();
        if (tool == u"WordWrap")
            return engine.WordWrap(text, first, flags.contains(u'h'), flags.contains(u't'), false);
        if (tool == u"removeExtraLines")
            return engine.removeExtraLines(text, flags.contains(u's'), flags.contains(u'm'));
        const int second = settings.value(1).toInt();
        if (tool == u"Tab2space")
            return engine.Tab2space(text, first, second);
        const int third = settings.value(2).toInt();
        if (tool == u"number")
            return engine.number(text, first, ListStyle{second}, FollowChar::Stop, third == 0, third);
        EXPECT_EQ(tool, u"LineNumber");
        return engine.LineNumber(text, first, second, third, flags.contains(u'b'), flags.contains(u'p'),
                                 flags.contains(u'r'));
    }
};

TEST_F(Examples, comeOutAsTheFileSays) {
    engine.setTopLevelDomains(u",com,org,"_s);
    forEachExample("/tests/text/examples.txt", [this](const QString &tool, QStringList sides) {
        for (QString &side : sides)
            side.replace(u'|', u"\r\n"_s);
        said = {};
        if (tool == u"checkPunctuation") {
            EXPECT_EQ(engine.checkPunctuation(sides[0], false), sides[1]);
            EXPECT_TRUE(sides[2] == u"*" || said.warnings.join(u'~') == sides[2]);
        } else {
            EXPECT_EQ(result(tool, sides[0]), sides[1]);
        }
    });
}

} // namespace
