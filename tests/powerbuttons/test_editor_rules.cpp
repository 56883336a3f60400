// SPDX-License-Identifier: MIT
#include "powerbuttons/example_buttons.h"
#include "tests/powerbuttons/world.h"

#include <array>

namespace tolvo {
namespace {

class Editor : public World {
  protected:
    /// A stored button 1 of these tools, opened in the editor.
    void open(const QList<const char *> &tokens) {
        CPowerButton &button = *buttons.Item(1);
        button.Name = QStringLiteral("Mine");
        for (const char *token : tokens)
            button.Add(action(token));
        methods.SavePBSettings(button, 1);
        rules.init(0);
    }
    QString actions() const { return actionsOf(rules.button()); }

    EditorRules rules{buttons, methods, tools, boxes, settings};
};

const QString selectTool = QStringLiteral("Please select a tool from the toolbox on the left");
const QString chooseCustom = QStringLiteral("Please choose your custom settings");

TEST_F(Editor, definesAButtonFromNothing) {
    rules.init(2);
    EXPECT_EQ(rules.caption(), QStringLiteral("Edit PowerButton 3"));
    EXPECT_EQ(rules.form().frameCaption, QStringLiteral(" Action 1 of 1"));
    EXPECT_TRUE(rules.form().examplesVisible);
    boxes.expect(selectTool);
    EXPECT_FALSE(rules.mayAdd());
    boxes.expect(selectTool);
    EXPECT_EQ(rules.save(QStringLiteral("x")), EditorRules::Saved::NoAction);

    rules.chooseTool(QStringLiteral("edSTR"));
    EXPECT_FALSE(rules.form().customEnabled);
    EXPECT_TRUE(rules.mayAdd());
    rules.addAfter();
    rules.chooseTool(QStringLiteral("foREM"));
    EXPECT_TRUE(rules.form().optionsEnabled);
    rules.chooseOption(Custom);
    boxes.expect(chooseCustom);
    EXPECT_FALSE(rules.goLeft());
    settings.answer = std::nullopt; // cancelled
    rules.chooseSettings();
    EXPECT_EQ(rules.form().details, QString());
    settings.answer = QStringLiteral("Single=1, Multiple=0");
    rules.chooseSettings();
    EXPECT_TRUE(rules.goLeft());
    EXPECT_FALSE(rules.goLeft());

    for (const char *name : {"", "  ", "<Enter a name>"}) {
        boxes.expect(QStringLiteral("Please enter a name for this button"));
        EXPECT_EQ(rules.save(QLatin1StringView(name)), EditorRules::Saved::NoName);
    }
    EXPECT_EQ(rules.save(QStringLiteral("New")), EditorRules::Saved::Yes);
    const CPowerButton stored = reread(3);
    EXPECT_EQ(stored.Name, QStringLiteral("New"));
    EXPECT_EQ(actionsOf(stored), QStringLiteral("edSTR foREM(Single=1, Multiple=0)"));
    EXPECT_EQ(stored.Item(2)->DlgOption(), Custom);
}

TEST_F(Editor, addsAndDeletes) {
    open({"soALP", "soNUM"});
    ASSERT_TRUE(rules.mayAdd());
    rules.addBefore();
    EXPECT_EQ(actions(), QStringLiteral("- soALP soNUM"));
    EXPECT_EQ(rules.position(), 1);
    rules.chooseTool(QStringLiteral("ccUPP"));
    ASSERT_TRUE(rules.mayAdd());
    rules.addAtEnd();
    EXPECT_EQ(rules.form().frameCaption, QStringLiteral(" Action 4 of 4"));
    EXPECT_FALSE(rules.form().rightVisible);
    rules.deleteAction(); // a blank one goes without a question
    EXPECT_EQ(rules.position(), 3);
    boxes.expect(QStringLiteral("Do you want to delete action 'Sort by number'?"), BoxAnswer::No);
    rules.deleteAction();
    boxes.expect(QStringLiteral("Do you want to delete action"), BoxAnswer::Yes);
    rules.deleteAction();
    EXPECT_EQ(actions(), QStringLiteral("ccUPP soALP"));
    for (int i = 0; i < 2; ++i) {
        boxes.expect(QStringLiteral("Do you want to delete action"), BoxAnswer::Yes);
        rules.deleteAction();
    }
    EXPECT_EQ(actions(), QStringLiteral("-"));
    EXPECT_FALSE(rules.form().deleteVisible);
}

TEST_F(Editor, asksBeforeItReplacesATool) {
    open({"foREM"});
    settings.answer = QStringLiteral("Single=1");
    rules.chooseSettings();
    EXPECT_EQ(settings.asked, QStringLiteral("foREM:"));
    rules.chooseTool(QStringLiteral("foREM")); // the same: no question
    rules.chooseTool(QStringLiteral("no such"));
    boxes.expect(QStringLiteral("Replace 'Remove blank lines...' with 'Word wrap...' in Action 1?"),
                 BoxAnswer::No);
    rules.chooseTool(QStringLiteral("foWRP"));
    EXPECT_EQ(actions(), QStringLiteral("foREM(Single=1)"));
    boxes.expect(QStringLiteral("Replace"), BoxAnswer::Yes);
    rules.chooseTool(QStringLiteral("foWRP"));
    EXPECT_EQ(actions(), QStringLiteral("foWRP"));
    boxes.expect(chooseCustom); // the option stayed, its settings are gone
    EXPECT_FALSE(rules.mayAdd());
}

TEST_F(Editor, refusesCircles) {
    buttons.Item(2)->Add(action("ccUPP"));
    buttons.Item(2)->Add(action("pbPBT", QStringLiteral("PowerButton=3"), Custom));
    buttons.Item(2)->Add(action("pbPBT", QStringLiteral("PowerButton=1"), Custom));
    open({});
    rules.chooseTool(QStringLiteral("pbPBT"));
    EXPECT_EQ(rules.form().option, Custom);
    EXPECT_TRUE(rules.form().customEnabled && !rules.form().optionsEnabled);
    settings.answer = QStringLiteral("PowerButton=2");
    rules.chooseSettings();
    boxes.expect(QStringLiteral("You cannot add PowerButton 2 to this PowerButton"));
    EXPECT_EQ(rules.save(QStringLiteral("x")), EditorRules::Saved::NoAction);
    EXPECT_EQ(boxes.last.title, QStringLiteral("Circular reference!"));
    settings.answer = QStringLiteral("PowerButton=3");
    rules.chooseSettings();
    EXPECT_EQ(rules.save(QStringLiteral("x")), EditorRules::Saved::Yes);

    buttons.Item(2)->Name = QStringLiteral("Two");
    EXPECT_TRUE(mayChoosePowerButton(buttons, 2, 1));
    EXPECT_FALSE(mayChoosePowerButton(buttons, 2, 2));
    EXPECT_FALSE(mayChoosePowerButton(buttons, 4, 1)); // not defined
    buttons.Item(2)->Name.clear();
    EXPECT_FALSE(mayChoosePowerButton(buttons, 2, 1));
}

TEST_F(Editor, takesEverythingBackOnCancel) {
    open({"soALP", "soNUM"});
    rules.chooseTool({});
    boxes.expect(QStringLiteral("Replace"), BoxAnswer::Yes);
    rules.chooseTool(QStringLiteral("ccUPP"));
    rules.button().IconText = QStringLiteral("X");
    rules.cancel();
    EXPECT_EQ(actionsOf(*buttons.Item(1)), QStringLiteral("soALP soNUM"));
    EXPECT_EQ(buttons.Item(1)->IconText, QString());

    rules.init(6); // the blank Action of an empty button goes as well
    rules.cancel();
    EXPECT_EQ(buttons.Item(7)->Count(), 0);
    EXPECT_FALSE(buttons.Item(7)->isDefined());
}

TEST_F(Editor, destroysOnlyWhenAskedTwice) {
    open({"soALP"});
    boxes.expect(QStringLiteral("You are about to delete the entire definition"), BoxAnswer::No);
    EXPECT_FALSE(rules.destroy());
    EXPECT_EQ(reread(1).Count(), 1);
    boxes.expect(QStringLiteral("You are about to delete the entire definition"), BoxAnswer::Yes);
    EXPECT_TRUE(rules.destroy());
    EXPECT_FALSE(buttons.Item(1)->isDefined());
    EXPECT_FALSE(reread(1).isDefined());
    EXPECT_EQ(reread(1).Count(), 0);
}

TEST_F(Editor, keepsAnOptionThatItDoesNotKnow) {
    buttons.Item(1)->Add(action("foREM", {}, 7));
    buttons.Item(1)->Add(action("ccUPP"));
    rules.init(0);
    EXPECT_TRUE(rules.goRight());
    EXPECT_EQ(buttons.Item(1)->Item(1)->DlgOption(), 7);
}

TEST_F(Editor, loadsAnExampleAsACopy) {
    const auto example = exampleButtons(tools).first();
    rules.init(0);
    rules.loadExample(*example);
    EXPECT_EQ(actions(), actionsOf(*example));
    EXPECT_FALSE(rules.form().examplesVisible);
    boxes.expect(QStringLiteral("Replace"), BoxAnswer::Yes);
    rules.chooseTool(QStringLiteral("ccUPP"));
    EXPECT_NE(actions(), actionsOf(*example));
}

} // namespace
} // namespace tolvo
