// SPDX-License-Identifier: MIT
// Finding tools by what a user types.
#include "shell/finder_entries.h"
#include "shell/window_commands.h"
#include "shell/word_match.h"
#include "tests/support/User.h"
#include "tests/support/examples.h"
#include "tests/support/print.h"

using namespace tolvo;
using namespace tolvo::test;
using enum MatchKind;

namespace {

/// The text with what was found in brackets.
QString pictureOf(const QString &text, const QList<int> &marked) {
    QString picture;
    for (int i = 0; i < text.size(); ++i) {
        const bool in = marked.contains(i);
        picture += in && !marked.contains(i - 1) ? QString("[") : QString();
        picture += text.at(i);
        picture += in && !marked.contains(i + 1) ? QString("]") : QString();
    }
    return picture;
}

TEST(WordMatch, takesTheBestPlace) {
    const QStringList kinds = {"None", "Slip", "Scattered", "Run", "Starts", "Words"};
    forEachExample("/tests/shell/finder_examples.txt", [&](const QString &section, const QStringList &row) {
        if (section != u"Words")
            return;
        const QString text = QString(row[1]).remove('[').remove(']');
        const WordMatch match = matchWord(row[0], text, TextKind::Title);
        EXPECT_EQ(kinds.value(static_cast<int>(match.kind)), row[2]);
        EXPECT_EQ(pictureOf(text, match.marked), row[1]);
    });
    EXPECT_EQ(matchWord(u"itc", u"Initial title case", TextKind::Prose).kind, None);
    EXPECT_EQ(matchWord(QString(5000, 'a'), QString(5000, 'a'), TextKind::Title).kind, Words);
}

FinderEntry entry(const char *id, const char *name, const char *words, const char *does) {
    return {.id = id, .name = name, .group = "Group", .does = does, .otherWords = words};
}

QString idsOf(const QList<FinderEntry> &entries, const QList<FoundTool> &found) {
    QStringList ids;
    for (const FoundTool &one : found)
        ids += entries.at(one.entry).id;
    return ids.join(' ');
}

TEST(ToolFinder, ranksByKindThenFieldThenUse) {
    const QList<FinderEntry> entries{
        entry("slip", "Wrpa", "", ""),
        entry("tip", "One", "", "to wrap"),
        entry("other", "Two", "wrap", ""),
        entry("run", "Unwrapped", "", ""),
        entry("start", "Wrapper", "", ""),
        entry("initials", "Word rap", "", ""),
        entry("word", "The wrap", "", ""),
        entry("same", "A wrap", "", ""),
        entry("tipstart", "Three", "", "wraps"),
        entry("name", "Wrap", "", ""),
        entry("otherstart", "Four", "wraps", ""),
    };
    const QString order = "name word same start initials other otherstart run tip tipstart slip";
    EXPECT_EQ(idsOf(entries, findTools(entries, " wrap ", {})), order);
    EXPECT_EQ(idsOf(entries, findTools(entries, "WRAP", {"slip", "initials", "same"})),
              "name same word initials start other otherstart run tip tipstart slip");
    EXPECT_EQ(idsOf(entries, findTools(entries, "wrap group the", {})), "word"); // each word somewhere
    EXPECT_EQ(idsOf(entries, findTools(entries, "  ", {})), "");
    EXPECT_EQ(idsOf(entries, lastUsedTools(entries, {"tip", "gone", "run", "slip"}, 2)), "tip run");
}

QList<FinderEntry> realEntries(const User &user) {
    return finderEntries(realCatalogue(), user.session.services().oPowerButtons,
                         OtherWords::read(dataFolder() + "/OtherWords.txt"));
}

TEST(ToolFinder, findsWhatPeopleCallTheTools) {
    const User user("a");
    const QList<FinderEntry> entries = realEntries(user);
    forEachExample("/tests/shell/finder_examples.txt", [&](const QString &section, const QStringList &row) {
        if (section != u"Tools")
            return;
        const QString ids = idsOf(entries, findTools(entries, row[0], {}));
        EXPECT_TRUE(ids.startsWith(row[1])) << ids.toStdString();
    });
    EXPECT_EQ(idsOf(entries, findTools(entries, "xylophone", {})), "");
}

TEST(ToolFinder, knowsOtherWordsOfEveryEntryAndOfNothingElse) {
    const User user("a");
    QStringList known = OtherWords::read(dataFolder() + "/OtherWords.txt").ids();
    for (const FinderEntry &entry : realEntries(user)) {
        EXPECT_FALSE(entry.otherWords.isEmpty()) << entry.id.toStdString();
        EXPECT_FALSE(entry.does.isEmpty()) << entry.id.toStdString();
        known.removeAll(entry.id);
    }
    EXPECT_EQ(known, QStringList());
    EXPECT_TRUE(OtherWords::read(dataFolder() + "/nowhere.txt").ids().isEmpty());
}

TEST(ToolFinder, takesKeysFromToolTipsAndPowerButtonsFromTheirSteps) {
    User user("a");
    user.defines(3, {User::action("foTRA"), User::action("foPAR")});
    const QList<FinderEntry> entries = realEntries(user);
    const auto shown = [&](const QString &id) {
        for (const FinderEntry &one : entries) {
            if (one.id == id)
                return QStringList{one.name, one.group, one.does, one.key, one.keyNote, one.rightClick}.join(
                    '|');
        }
        return QString();
    };
    EXPECT_EQ(shown("edSRC"),
              "Search...|Clean & Replace|Find text, also with wildcards or regular expressions|"
              "Ctrl-F|Ctrl-F|");
    EXPECT_EQ(shown("ccUPP"), "UPPER CASE|Capitals|Make all letters capitals|Ctrl-U|"
                              "Ctrl-U: those selected, or the next one|");
    EXPECT_TRUE(shown("chGRA").contains("|Shift-F7|")) << shown("chGRA").toStdString();
    EXPECT_TRUE(shown("foIND").endsWith("|with last settings"));
    EXPECT_TRUE(shown("edSTR").contains("the marks (> and |) of quoted e-mail"));
    EXPECT_EQ(shown("PB2"),
              "Button 3|PowerButton 3|Trim line ends, Join paragraphs|Ctrl-3|Ctrl-3 or Alt-F3|edit");
    EXPECT_EQ(shown("PB0"), "");
}

TEST(ToolFinder, runsWhatItFindsAndRemembersIt) {
    User user("one  |«»two");
    user.defines(1, {User::action("ccUPP")});
    runFound(user.session, "PB0", false);
    user.sees("«»ONE  |TWO");
    runFound(user.session, "foBOTH", false);
    user.sees("«»ONE|TWO", "2 characters removed");
    runFound(user.session, "cmdUndo", false);
    user.sees("«»ONE  |TWO");
    runFound(user.session, "PB0", true);
    runFound(user.session, "imgOptions", false);
    EXPECT_EQ(user.opened.join(' '), "editor 0 Options");
    user.cancelsDialogs = true;
    runFound(user.session, "foIND", true); // asks nothing
    user.sees("«»\tONE  |\tTWO", "Indent increased");
    EXPECT_FALSE(user.session.bRightButton);
    user.session.imgFavourites_Click("chPNC");
    user.runs("ccLOW");
    user.runs("ccUPP");
    user.runs("ccLOW");
    EXPECT_EQ(lastUsed(user.store).join(' '), "ccLOW ccUPP edPLA+chPNC foIND imgOptions cmdUndo foBOTH PB0");
    user.runs("nowhere");
    user.isTold("This tool is not implemented yet");
    EXPECT_EQ(lastUsed(user.store).first(), "ccLOW");
}

} // namespace
