// SPDX-License-Identifier: MIT
#include "powerbuttons/step_words.h"
#include "tests/powerbuttons/world.h"

#include <random>

using namespace Qt::StringLiterals;

namespace tolvo {
namespace {

using enum SettingsFrom;

class EditorSteps : public World {
  protected:
    void open(int index, const QList<std::shared_ptr<CAction>> &actions) {
        CPowerButton &button = *buttons.Item(index + 1);
        button.Name = "Mine";
        for (const auto &one : actions)
            button.Add(one);
        methods.SavePBSettings(button, index + 1);
        rules.init(index);
    }
    /// Tokens and details, the current one in brackets, a switched off one with a minus.
    QString picture() const {
        QStringList list;
        for (int position = 1; position <= rules.button().Count(); ++position) {
            const auto step = rules.button().Item(position);
            QString word = step->Tool() ? step->Tool()->Token() : "?";
            if (step->switchedOff())
                word.prepend('-');
            list += position == rules.position() ? '[' + word + ']' : word;
        }
        return list.join(' ');
    }

    EditorRules rules{buttons, methods, tools, boxes, settings};
};

TEST_F(EditorSteps, moveCopyAndGo) {
    open(0, {action("ccUPP"), action("foTRM"), action("soALP")});
    EXPECT_TRUE(rules.goTo(3));
    EXPECT_FALSE(rules.goTo(4));
    EXPECT_TRUE(rules.moveStep(3, 1));
    EXPECT_EQ(picture(), "[soALP] ccUPP foTRM");
    EXPECT_FALSE(rules.moveStep(1, 0));
    EXPECT_TRUE(rules.moveStep(2, 3));
    EXPECT_EQ(picture(), "soALP foTRM [ccUPP]");
    rules.switchOff(1, true);
    EXPECT_TRUE(rules.duplicateStep());
    EXPECT_EQ(picture(), "-soALP foTRM ccUPP [ccUPP]");
    rules.removeStep();
    rules.goTo(1);
    EXPECT_TRUE(rules.cutStep());
    EXPECT_EQ(picture(), "[foTRM] ccUPP");
    EXPECT_EQ(rules.save("Mine"), EditorRules::Saved::Yes);
    open(1, {});
    EXPECT_FALSE(rules.copyStep()) << "a blank step";
    EXPECT_TRUE(rules.pasteStep());
    EXPECT_EQ(picture(), "[-soALP]") << "in the place of the blank step of another button";
    EXPECT_TRUE(rules.pasteStep());
    EXPECT_EQ(picture(), "-soALP [-soALP]");
    rules.switchOff(2, false);
    rules.save("Other");
    EXPECT_TRUE(reread(2).Item(1)->switchedOff());
    EXPECT_FALSE(reread(2).Item(2)->switchedOff());
}

TEST_F(EditorSteps, areCheckedBeforeAnotherIsChosen) {
    open(0, {action("ccUPP"), action("foREM", {}, Custom)});
    EXPECT_TRUE(rules.goTo(2));
    for (const auto &leave : {std::function<bool()>([&] { return rules.goTo(1); }),
                              std::function<bool()>([&] { return rules.moveStep(1, 2); }),
                              std::function<bool()>([&] { return rules.duplicateStep(); })}) {
        boxes.expect("Please choose your custom settings");
        EXPECT_FALSE(leave());
        EXPECT_EQ(picture(), "ccUPP [foREM]");
    }
    EXPECT_TRUE(rules.moveStep(2, 1)) << "the one that is not complete may be moved";
    EXPECT_TRUE(rules.copyStep());
    buttons.Item(2)->Name = "Second";
    buttons.Item(2)->Add(action("pbPBT", "PowerButton=1", Custom));
    rules.removeStep();
    EXPECT_TRUE(rules.mayAdd());
    rules.addAtEnd();
    rules.chooseTool("pbPBT");
    settings.answer = "PowerButton=2";
    rules.chooseSettings();
    boxes.expect("You cannot add PowerButton 2");
    EXPECT_FALSE(rules.goTo(1));
}

TEST_F(EditorSteps, allChangesAreTakenBackAndBroughtBack) {
    std::mt19937 random(7);
    const auto upTo = [&](int most) { return static_cast<int>(random() % static_cast<unsigned>(most)) + 1; };
    for (int round = 0; round < 30; ++round) {
        buttons.Add(std::make_shared<CPowerButton>(), 1);
        open(0, {action("ccUPP"), action("foTRM"), action("soALP"), action("foREM", "Single=1", Custom)});
        QStringList states{picture().remove('[').remove(']')};
        const auto note = [&] {
            const QString now = picture().remove('[').remove(']');
            if (now != states.last())
                states += now;
        };
        for (int i = 0; i < 12; ++i) {
            const int count = rules.button().Count();
            switch (random() % 6) {
            case 0:
                rules.moveStep(upTo(count), upTo(count));
                break;
            case 1:
                rules.removeStep();
                break;
            case 2:
                rules.duplicateStep();
                break;
            case 3:
                rules.copyStep();
                break;
            case 4:
                rules.goTo(upTo(count));
                break;
            default:
                const int position = upTo(count);
                rules.switchOff(position, !rules.button().Item(position)->switchedOff());
            }
            if (!rules.button().Item(rules.position())->Tool())
                rules.undo(); // a blank step asks at every turn
            else
                note();
        }
        // A state may have come up twice in a row through a copy and a move of equals, so compare the ends.
        const QString last = picture();
        while (rules.undo()) {
        }
        EXPECT_EQ(picture().remove('[').remove(']'), states.first());
        while (rules.redo()) {
        }
        EXPECT_EQ(picture(), last) << round;
    }
}

TEST_F(EditorSteps, takeBackWhatTheFormDoesToo) {
    open(0, {action("ccUPP"), action("foREM", "Single=1", Custom)});
    EXPECT_FALSE(rules.undo()) << "nothing has changed";
    boxes.expect("Replace", BoxAnswer::No);
    rules.chooseTool("ccLOW");
    EXPECT_FALSE(rules.undo());
    boxes.expect("Replace", BoxAnswer::Yes);
    rules.chooseTool("ccLOW");
    rules.goTo(2);
    rules.chooseOption(Current);
    settings.answer = "Single=0, Multiple=1";
    rules.chooseSettings();
    EXPECT_EQ(rules.form().option, Custom);
    EXPECT_TRUE(rules.undo());
    EXPECT_EQ(rules.form().option, Current);
    EXPECT_TRUE(rules.undo());
    EXPECT_EQ(rules.form().option, Custom);
    EXPECT_TRUE(rules.undo());
    EXPECT_EQ(picture(), "[ccUPP] foREM");
    EXPECT_TRUE(rules.redo() && rules.redo() && rules.redo());
    EXPECT_EQ(rules.form().details, "Single=0, Multiple=1");
    rules.switchOff(1, true);
    EXPECT_FALSE(rules.redo());
}

TEST_F(EditorSteps, inWords) {
    buttons.Item(3)->Name = "Clean mail";
    const struct {
        const char *token;
        QString details;
        QString words;
        SettingsFrom option = Custom;
    } cases[] = {
        {"ccUPP", "", "UPPER CASE"},
        {"toolNULL", "", "NULL"},
        {"foWRP", "Width=60, Justify=0, Hanging=1, Tab=True", "Word wrap: width 60, hanging, tab"},
        {"foWRP", "Width=60", "Word wrap: asks when run", Prompt},
        {"foWRP", "Width=60", "Word wrap: as used last", Current},
        {"foWRP", "Width=60", "Word wrap: does nothing", static_cast<SettingsFrom>(7)},
        {"foREM", "Single=1, Multiple=0", "Remove blank lines: single"},
        {"foIND", "Spaces=4, Text=> , RadioButton=2", u"Indent: text “> ”"_s},
        {"foIND", "Spaces=4, Text=> , RadioButton=1", "Indent: spaces 4"},
        {"foIND", "Spaces=4, Text=> , RadioButton=0", "Indent: a tab"},
        {"liBUL", u"Bullet=•, Tab=False, Spaces=2"_s, u"Bullet list: bullet “•”, spaces 2"_s},
        {"liBUL", u"Bullet=•, Tab=True, Spaces=2"_s, u"Bullet list: bullet “•”, tab"_s},
        {"edSRC", "Mode=1, Find=a=b, Find=c, MatchCase=1, Direction=U",
         u"Search: find “a=b”, match case, up"_s},
        {"edSRC", "Mode=3, Find=a, Direction=D, Strange=5",
         u"Search: regular expression, find “a”, Strange=5"_s},
        {"pbPBT", "PowerButton=3", "Run PowerButton: Clean mail"},
        {"pbPBT", "PowerButton=4", "Run PowerButton: 4"},
    };
    int position = 0;
    for (const auto &c : cases) {
        ++position;
        EXPECT_EQ(stepLine(position, *action(c.token, c.details, c.option), buttons),
                  QString("%1. ").arg(position) + c.words);
    }
    EXPECT_EQ(stepLine(2, CAction(), buttons), "2. (no tool yet)");
}

} // namespace
} // namespace tolvo
