// SPDX-License-Identifier: MIT
#include "shell/headless/clipboard_command.h"

#include "platform/headless/MemoryClipboard.h"
#include "preferences/settings_store.h"
#include "tests/support/User.h"

using namespace tolvo;
using namespace tolvo::test;

namespace {

class Command : public ::testing::Test {
  protected:
    Command() {
        NamedBoxes boxes;
        CPowerButton shout;
        shout.Name = "Shout, please";
        shout.Add(User::action("ccUPP"));
        shout.Add(User::action("foTRA", SettingsFrom::Current));
        CPowerButton spelling;
        spelling.Name = "Grammar";
        spelling.Add(User::action("chGRA", SettingsFrom::Current));
        CPowerButtonMethods methods(store, realCatalogue(), boxes);
        methods.SavePBSettings(shout, 3);
        methods.SavePBSettings(spelling, 4);
    }

    /// What is wrong with a command; empty if nothing is.
    QString refusal(const QString &button, const QString &tool) {
        try {
            const ClipboardCommand command(world, button, tool);
            return {};
        } catch (const BadRequest &refused) {
            return QString::fromUtf8(refused.what());
        }
    }

    QTemporaryDir folder;
    SettingsStore store{folder.filePath("settings.sqlite")};
    FileExtensions extensions{dataFolder() + "/FileExtensions.txt"};
    HeadlessWorld world{
        .store = store, .catalogue = realCatalogue(), .extensions = extensions, .dataFolder = dataFolder()};
};

TEST_F(Command, putsTheResultBack) {
    const QString longText = QString("a ").repeated(100'000);
    const struct {
        QString button, tool, before, after, name;
    } rows[] = {
        {"3", "", "a \r\nb  ", "A\r\nB", "Shout, please"},
        {"shout, PLEASE", "", "a ", "A", "Shout, please"},
        {"", "ccUPP", longText, longText.toUpper(), "UPPER CASE"},
        {"", "foIND:Spaces=2, Text=, RadioButton=1", "a", "  a", "Indent"},
        {"", "edCPM:Mode=1, Find=b", "a b", "b", "Copy matches"},
    };
    for (const auto &row : rows) {
        MemoryClipboard clipboard(row.before);
        ClipboardCommand command(world, row.button, row.tool);
        const CommandOutcome outcome = command.run(clipboard);
        EXPECT_TRUE(outcome.done) << outcome.message.toStdString();
        EXPECT_EQ(command.name(), row.name);
        EXPECT_EQ(clipboard.text, row.after);
        EXPECT_EQ(outcome.before, row.before);
        EXPECT_FALSE(outcome.message.isEmpty());
    }
}

TEST_F(Command, leavesTheClipboardAloneWhenThereIsNothingToPutBack) {
    MemoryClipboard silent("text");
    silent.answers = false;
    MemoryClipboard empty;
    MemoryClipboard done("DONE");
    MemoryClipboard text("text");
    const struct {
        MemoryClipboard &clipboard;
        QString tool;
        bool done;
        QString message;
    } rows[] = {
        {silent, "ccUPP", false, "The program that owns the clipboard doesn't answer"},
        {empty, "ccUPP", false, "There is no text on the clipboard"},
        {done, "ccUPP", true, "Nothing to change"},
        {text, "foIND:RadioButton=x", false, {}}, // the report of the failure
    };
    for (const auto &row : rows) {
        const CommandOutcome outcome = ClipboardCommand(world, {}, row.tool).run(row.clipboard);
        EXPECT_EQ(outcome.done, row.done) << row.tool.toStdString();
        EXPECT_FALSE(outcome.message.isEmpty());
        EXPECT_TRUE(row.message.isEmpty() || outcome.message == row.message) << outcome.message.toStdString();
        EXPECT_EQ(outcome.before, std::nullopt);
        EXPECT_EQ(row.clipboard.writes, 0);
    }
}

TEST_F(Command, refusesBeforeItAsksTheClipboard) {
    EXPECT_EQ(refusal("3", {}), QString());
    EXPECT_EQ(refusal("9", {}), "there is no PowerButton \"9\"; a number from 1 to 8 or a name is meant");
    EXPECT_EQ(refusal("-1", {}), "there is no PowerButton \"-1\"; a number from 1 to 8 or a name is meant");
    EXPECT_EQ(refusal("2", {}), "there are no actions defined for PowerButton 2");
    EXPECT_TRUE(refusal("4", {}).contains("needs a window"));
    EXPECT_TRUE(refusal({}, "chGRA").contains("needs a window"));
    EXPECT_TRUE(refusal({}, "xx").startsWith("there is no tool \"xx\""));
}

} // namespace
