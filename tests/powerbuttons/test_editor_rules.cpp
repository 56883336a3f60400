// SPDX-License-Identifier: MIT
#include "tests/powerbuttons/world.h"

namespace tolvo {
namespace {

class Editor : public World {
  protected:
    /// A stored button 1 of these tools, opened in the editor.
    void open(const QList<const char *> &tokens) {
        CPowerButton &button = *buttons.Item(1);
        button.Name = "Mine";
        for (const char *token : tokens)
            button.Add(action(token));
        methods.SavePBSettings(button, 1);
        rules.init(0);
    }
    QString actions() const { return actionsOf(rules.button()); }

    EditorRules rules{buttons, methods, tools, boxes, settings};
};

const QString selectTool = "Please select a tool from the toolbox on the left";
const QString chooseCustom = "Please choose your custom settings";

TEST_F(Editor, definesAButtonFromNothing) {
    rules.init(2);
    boxes.expect(selectTool);
    EXPECT_FALSE(rules.mayAdd());
    boxes.expect(selectTool);
    EXPECT_EQ(rules.save("x"), EditorRules::Saved::NoAction);

    rules.chooseTool("edSTR");
    EXPECT_FALSE(rules.form().customEnabled);
    EXPECT_TRUE(rules.mayAdd());
    rules.addAfter();
    rules.chooseTool("foREM");
    EXPECT_TRUE(rules.form().optionsEnabled);
    rules.chooseOption(SettingsFrom::Custom);
    boxes.expect(chooseCustom);
    EXPECT_FALSE(rules.goLeft());
    settings.answer = std::nullopt; // cancelled
    rules.chooseSettings();
    EXPECT_EQ(rules.form().details, QString());
    settings.answer = "Single=1, Multiple=0";
    rules.chooseSettings();
    EXPECT_TRUE(rules.goLeft());
    EXPECT_FALSE(rules.goLeft());

    for (const char *name : {"", "  ", "<Enter a name>"}) {
        boxes.expect("Please enter a name for this button");
        EXPECT_EQ(rules.save(QLatin1StringView(name)), EditorRules::Saved::NoName);
    }
    EXPECT_EQ(rules.save("New"), EditorRules::Saved::Yes);
    const CPowerButton stored = reread(3);
    EXPECT_EQ(stored.Name, "New");
    EXPECT_EQ(actionsOf(stored), "edSTR foREM(Single=1, Multiple=0)");
    EXPECT_EQ(stored.Item(2)->DlgOption(), SettingsFrom::Custom);
}

TEST_F(Editor, addsAndDeletes) {
    open({"soALP", "soNUM"});
    ASSERT_TRUE(rules.mayAdd());
    rules.addBefore();
    EXPECT_EQ(actions(), "- soALP soNUM");
    EXPECT_EQ(rules.position(), 1);
    rules.chooseTool("ccUPP");
    ASSERT_TRUE(rules.mayAdd());
    rules.addAtEnd();
    EXPECT_FALSE(rules.form().rightVisible);
    rules.deleteAction(); // a blank one goes without a question
    EXPECT_EQ(rules.position(), 3);
    boxes.expect("Do you want to delete action 'Sort by number'?", BoxAnswer::No);
    rules.deleteAction();
    boxes.expect("Do you want to delete action", BoxAnswer::Yes);
    rules.deleteAction();
    EXPECT_EQ(actions(), "ccUPP soALP");
    for (int i = 0; i < 2; ++i) {
        boxes.expect("Do you want to delete action", BoxAnswer::Yes);
        rules.deleteAction();
    }
    EXPECT_EQ(actions(), "-");
    EXPECT_FALSE(rules.form().deleteVisible);
}

TEST_F(Editor, asksBeforeItReplacesATool) {
    open({"foREM"});
    settings.answer = "Single=1";
    rules.chooseSettings();
    EXPECT_EQ(settings.asked, "foREM:");
    rules.chooseTool("foREM"); // the same: no question
    rules.chooseTool("no such");
    boxes.expect("Replace 'Remove blank lines...' with 'Word wrap...' in Action 1?", BoxAnswer::No);
    rules.chooseTool("foWRP");
    EXPECT_EQ(actions(), "foREM(Single=1)");
    boxes.expect("Replace", BoxAnswer::Yes);
    rules.chooseTool("foWRP");
    EXPECT_EQ(actions(), "foWRP");
    boxes.expect(chooseCustom); // the option stayed, its settings are gone
    EXPECT_FALSE(rules.mayAdd());
}

TEST_F(Editor, refusesCircles) {
    buttons.Item(2)->Add(action("ccUPP"));
    buttons.Item(2)->Add(action("pbPBT", "PowerButton=3", SettingsFrom::Custom));
    buttons.Item(2)->Add(action("pbPBT", "PowerButton=1", SettingsFrom::Custom));
    open({});
    rules.chooseTool("pbPBT");
    EXPECT_EQ(rules.form().option, SettingsFrom::Custom);
    EXPECT_TRUE(rules.form().customEnabled && !rules.form().optionsEnabled);
    settings.answer = "PowerButton=2";
    rules.chooseSettings();
    boxes.expect("You cannot add PowerButton 2 to this PowerButton");
    EXPECT_EQ(rules.save("x"), EditorRules::Saved::NoAction);
    EXPECT_EQ(boxes.last.title, "Circular reference!");
    settings.answer = "PowerButton=3";
    rules.chooseSettings();
    EXPECT_EQ(rules.save("x"), EditorRules::Saved::Yes);
}

TEST_F(Editor, takesEverythingBackOnCancel) {
    open({"soALP", "soNUM"});
    rules.chooseTool({});
    boxes.expect("Replace", BoxAnswer::Yes);
    rules.chooseTool("ccUPP");
    rules.button().IconText = "X";
    rules.cancel();
    EXPECT_EQ(actionsOf(*buttons.Item(1)), "soALP soNUM");
    EXPECT_EQ(buttons.Item(1)->IconText, QString());

    rules.init(6); // the blank Action of an empty button goes as well
    rules.cancel();
    EXPECT_EQ(buttons.Item(7)->Count(), 0);
    EXPECT_FALSE(buttons.Item(7)->isDefined());
}

} // namespace
} // namespace tolvo
