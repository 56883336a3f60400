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
        if (tool == u"checkPunctuation")
            return engine.checkPunctuation(text, true);
        if (tool == u"TitleCase") {
            const qsizetype start = text.indexOf(u'«');
            const qsizetype length = text.indexOf(u'»') - start - 1;
            return engine.TitleCase(text.remove(u'«').remove(u'»'), start, length);
        }
        EXPECT_EQ(tool, u"WordWrap");
        const QString settings = text.section(u':', 0, 0);
        return engine.WordWrap(text.mid(settings.size() + 2), settings.section(u' ', 0, 0).toInt(),
                               settings.contains(u'h'), settings.contains(u't'), false);
    }
};

TEST_F(Examples, comeOutAsTheFileSays) {
    engine.setTopLevelDomains(u",com,org,"_s);
    forEachExample("/tests/text/examples.txt", 449, [this](const QString &tool, QStringList sides) {
        for (QString &side : sides)
            side.replace(u'|', u"\r\n"_s);
        EXPECT_EQ(result(tool, sides[0]), sides[1]);
    });
}

} // namespace
