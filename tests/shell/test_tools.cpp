// SPDX-License-Identifier: MIT
// The tool frame: what each tool sees of the text, what is selected afterwards, what the status line says.
#include "powerbuttons/setting_words.h"
#include "shell/cToolbox.h"
#include "shell/tool_table.h"
#include "tests/support/User.h"

#include <QSet>

using namespace tolvo;
using namespace tolvo::test;

namespace {

TEST(Tools, sevenOfThemFailOnALongSelectionAndChangeNothing) {
    const QSet<QString> limited{"ccUPP", "ccLOW", "ccREV", "ccTIT", "soKEY", "soALP", "soNUM"};
    for (const ToolRow &row : toolTable()) {
        const QString token = QString::fromUtf16(row.token);
        EXPECT_EQ(row.sixteenBit, limited.contains(token)) << token.toStdString();
        if (!limited.contains(token))
            continue;
        User user;
        const QString text = "b, a" + QString(32765, u'x');
        user.startsWith("y|«" + text.first(32768) + "»" + text.sliced(32768));
        user.runs(token);
        user.isToldSomethingLike("(error 6)");
        user.sees("y|«" + text.first(32768) + "»" + text.sliced(32768));
        EXPECT_FALSE(user.session.bDirty());
    }
    User user; // one character less is a working case
    user.startsWith(u'«' + QString(32767, u'x') + u'»');
    user.runs("ccUPP");
    user.sees(u'«' + QString(32767, u'X') + u'»');
}

TEST(Tools, ofTheTableAreThoseOfTheCatalogue) {
    QSet<QString> known;
    QSet<std::size_t> withSettings;
    for (const ToolRow &row : toolTable()) {
        SCOPED_TRACE(QString::fromUtf16(row.token).toStdString());
        const ToolPtr tool = realCatalogue().tool(QString::fromUtf16(row.token));
        ASSERT_TRUE(tool);
        EXPECT_EQ(tool->gotDialog(), row.gotDialog());
        const ToolOperation &operation = row.operation;
        EXPECT_EQ((operation.run ? 1 : 0) + (operation.edit ? 1 : 0) + (operation.procedure ? 1 : 0), 1);
        EXPECT_EQ(operation.settings != nullptr, operation.window == SettingsWindow::Dialog);
        if (operation.settings) {
            const ToolSettings settings = operation.settings();
            withSettings += settings.index();
            CAction step;
            step.setTool(tool);
            step.setDetails(settingsString(settings));
            EXPECT_FALSE(settingsInWords(step).contains(u'=')) << "a key without words";
        }
        EXPECT_FALSE(known.contains(tool->Token()));
        known += tool->Token();
    }
    for (const ToolPtr &tool : realCatalogue().tools())
        EXPECT_TRUE(tool->isHeading() || tool->Token() == "toolNULL" || known.contains(tool->Token()))
            << tool->Token().toStdString();
    EXPECT_EQ(withSettings.size(), std::variant_size_v<ToolSettings>) << "settings of no tool";
    for (const Favourite &favourite : favourites) {
        const QString tag = QString::fromUtf16(favourite.tag);
        EXPECT_TRUE(tag == "foBOTH" || known.contains(tag)) << tag.toStdString();
    }
}

TEST(Tools, aDialogAsksOnceAndARightClickNever) {
    User user("a|«b»");
    user.runs("foIND");
    user.sees("a|«> b»", "Indent increased");
    user.runsAgain("foIND");
    user.sees("a|«> > b»");
    EXPECT_EQ(user.opened, QStringList("Indent"));

    user.cancelsDialogs = true;
    user.runs("foUNI");
    user.sees("a|«> > b»", {});
    EXPECT_EQ(user.session.sLastTool, "foUNI");
    EXPECT_EQ(user.counter("Usage", "foUNI"), "1");
    user.session.cmdUndo_Click(); // the cancelled tool has left no state
    user.sees("a|«> b»");
}

TEST(Tools, takeStoredSettingsThatCantBeReadFor0) {
    User user("a");
    for (const char *key : {"Spaces", "PadChars", "StartNumber"}) {
        for (const char *section : {"Indent", "NumList"})
            user.store.SaveSetting("Tolvo", QLatin1StringView(section), QLatin1StringView(key), "many");
    }
    user.runs("foIND"); // the dialog opens
    user.sees("«»> a", "Indent increased");
    user.store.SaveSetting("Tolvo", "Spelling", "LangID", "none");
    user.runsAgain("chSPE");
    user.isTold("Spelling check complete");
    user.runsAgain("liNUM");
    EXPECT_TRUE(user.session.txtCurrent().Text().startsWith(u'0'));
}

TEST(Tools, areCountedAndUnknownOnesAreReported) {
    User user(QString(""));
    user.runs("ccUPP");
    user.runs("ccUPP");
    EXPECT_EQ(user.counter("Usage", "ccUPP"), "2");
    EXPECT_EQ(user.counter("TotUsage", "ccUPP"), "2");
    for (const char *token : {"foCOL", "pbPBT", "toolNULL"}) {
        user.runs(QLatin1StringView(token));
        user.isTold("This tool is not implemented yet");
        EXPECT_EQ(user.session.sLastTool, QString());
    }
}

TEST(Tools, favouritesMayBeTwoToolsInOne) {
    User user("a  b |c");
    user.session.imgFavourites_Click("foBOTH");
    user.sees("«»a b|c", "2 characters removed");
    user.session.cmdUndo_Click();
    user.sees("«»a  b|c");
    user.session.cmdUndo_Click();
    user.sees("«»a  b |c");

    user.startsWith("a…");
    user.session.imgFavourites_Click("chPNC");
    user.sees("«»a...", "Punctuation checked");
}

TEST(Tools, searchWindowBeginsWithAShortSelection) {
    const struct {
        QString selected, box;
        bool special;
    } cases[] = {{QString(24, u'x'), QString(24, u'x'), false},
                 {QString(25, u'x'), "old", false},
                 {{}, "old", false},
                 {"a\tb|c", "a\\tb\\nc", true},
                 {"a\rb\n", "a\\x0Db\\x0A", true}};
    for (const auto &row : cases) {
        User user;
        user.searchRequest.find = "old";
        user.startsWith("y«" + row.selected + "»");
        user.runs("edREP");
        EXPECT_EQ(user.searchRequest.find, row.box);
        EXPECT_EQ(user.searchRequest.specialChars, row.special);
        EXPECT_EQ(user.opened.join(u' '), row.special ? "more replace" : "replace");
    }
}

TEST(Tools, spellingThatChangesNothingIsNoChange) {
    User user("teh|");
    user.runs("chSPE");
    user.isTold("Spelling check complete");
    EXPECT_FALSE(user.session.bDirty());
    user.corrected = "the\r";
    user.runsAgain("chGRA");
    user.sees("«»the|");
    EXPECT_TRUE(user.session.bDirty());
    EXPECT_EQ(user.opened.join(u'|'), "spelling 2057|grammar -1");
    user.chosenLanguage = -2; // the list of languages was cancelled
    user.runs("chSPE");
    EXPECT_EQ(user.opened.size(), 2);
}

} // namespace
