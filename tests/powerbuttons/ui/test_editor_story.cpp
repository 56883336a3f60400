// SPDX-License-Identifier: MIT
#include "powerbuttons/ui/dlgChoosePB.h"
#include "powerbuttons/ui/dlgEditIcon.h"
#include "powerbuttons/ui/frmPowerButton.h"
#include "tests/powerbuttons/world.h"
#include "tests/ui/user.h"

#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTreeWidget>

namespace tolvo {
namespace {

class EditorStory : public World {
  protected:
    void open(int index) {
        form.init(index);
        activate(form);
    }
    void press(const char *name) { click(form, name); }
    /// A click on the leaf of that name.
    void clickTool(const QString &name) {
        auto &tree = child<QTreeWidget>(form, "tvwTools");
        QTreeWidgetItem *item = tree.findItems(name, Qt::MatchExactly | Qt::MatchRecursive).value(0);
        ASSERT_NE(item, nullptr);
        tree.scrollToItem(item);
        QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, tree.visualItemRect(item).center());
    }
    void alt(Qt::Key key) { tolvo::press(form, key, Qt::AltModifier); }
    QString label(const char *name) { return child<QLabel>(form, name).text(); }

    frmPowerButton form{buttons, methods, tools, boxes, settings};
};

TEST_F(EditorStory, withTheMouse) {
    open(0);
    EXPECT_EQ(form.windowTitle(), "Edit PowerButton 1");
    EXPECT_FALSE(child<QWidget>(form, "optPrompt").isEnabled());
    clickTool("UPPER CASE");
    EXPECT_EQ(label("labTool"), "UPPER CASE");
    // A menu takes a click only from a mouse that has moved since it opened, so the mouse must be somewhere.
    QTest::mouseMove(&child<QWidget>(form, "cmdAddAction"));
    press("cmdAddAction");
    auto &menu = child<QMenu>(form, "mnuAddAction");
    ASSERT_TRUE(menu.isVisible());
    const QPoint atEnd = menu.actionGeometry(menu.actions().at(2)).center();
    QTest::mouseClick(&menu, Qt::LeftButton, {}, atEnd);
    EXPECT_EQ(child<QGroupBox>(form, "frmAction").title(), " Action 2 of 2");
    clickTool("Clean & Replace"); // a heading is no tool
    clickTool("Remove blank lines...");
    settings.answer = "Single=1, Multiple=0";
    press("cmdSettings");
    EXPECT_EQ(label("labDetails"), *settings.answer);
    EXPECT_TRUE(child<QRadioButton>(form, "optCustom").isChecked());
    press("cmdLeft");
    EXPECT_EQ(label("labTool"), "UPPER CASE");
    EXPECT_FALSE(child<QWidget>(form, "cmdLeft").isVisible());

    withModal<dlgEditIcon>([](dlgEditIcon &dialog) {
        child<QLineEdit>(dialog, "txtSymbol").setText("UP");
        click(dialog, "OKButton");
    });
    press("picIcon");
    boxes.expect("Please enter a name for this button");
    press("cmdOK");
    EXPECT_TRUE(form.isVisible());
    child<QLineEdit>(form, "txtName").setText("Loud");
    press("cmdOK");
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(reread(1).Name, "Loud");
    EXPECT_EQ(reread(1).IconText, "UP");
    EXPECT_EQ(actionsOf(reread(1)), "ccUPP foREM(Single=1, Multiple=0)");
}

TEST_F(EditorStory, withTheKeys) {
    open(0);
    auto &tree = child<QTreeWidget>(form, "tvwTools");
    tree.setFocus();
    QTest::keyClicks(&tree, "Initial C"); // the space is a part of the name
    EXPECT_FALSE(child<QLabel>(form, "labTool").isEnabled()) << "chosen while typing";
    EXPECT_EQ(tree.currentItem()->text(0), "Initial Caps");
    QTest::qWait(QApplication::keyboardInputInterval() + 50);
    QTest::keyClick(&tree, Qt::Key_Space);
    EXPECT_EQ(label("labTool"), "Initial Caps");
    auto &menu = child<QMenu>(form, "mnuAddAction");
    alt(Qt::Key_A);
    EXPECT_TRUE(menu.isVisible());
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Return})
        QTest::keyClick(&menu, key);
    EXPECT_EQ(child<QGroupBox>(form, "frmAction").title(), " Action 2 of 2");
    activate(form);
    alt(Qt::Key_D);
    EXPECT_EQ(buttons.Item(1)->Count(), 1);
    boxes.expect("You are about to delete", BoxAnswer::No);
    alt(Qt::Key_X);
    EXPECT_TRUE(form.isVisible());
}

TEST_F(EditorStory, anotherPowerButtonAsAStep) {
    buttons.Item(3)->Name = "Third";
    open(1);
    clickTool("Run PowerButton...");
    EXPECT_FALSE(child<QWidget>(form, "optPrompt").isEnabled());
    withModal<dlgChoosePB>([](dlgChoosePB &dialog) {
        auto &number = child<QSpinBox>(dialog, "VScroll1");
        auto &ok = child<QPushButton>(dialog, "OKButton");
        EXPECT_EQ(child<QLineEdit>(dialog, "txtName").text(),
                  "Third"); // the first one possible
        child<QLineEdit>(dialog, "txtButtonNumber").setText("2");
        EXPECT_TRUE(child<QLabel>(dialog, "labAddToItself").isVisible());
        EXPECT_FALSE(ok.isEnabled());
        number.setValue(4);
        EXPECT_FALSE(child<QLabel>(dialog, "labAddToItself").isVisible() || ok.isEnabled());
        number.setValue(3);
        ok.click();
    });
    press("cmdSettings");
    EXPECT_EQ(label("labDetails"), "PowerButton=3");
    buttons.Item(2)->Item(1)->setDetails("PowerButton=12");
    withModal<dlgChoosePB>([](dlgChoosePB &dialog) {
        auto &number = child<QSpinBox>(dialog, "VScroll1");
        EXPECT_EQ(number.text(), "12") << "shown as it is stored";
        EXPECT_FALSE(child<QPushButton>(dialog, "OKButton").isEnabled());
        number.stepDown();
        EXPECT_EQ(number.text(), "8");
    });
    press("cmdSettings");
}

TEST_F(EditorStory, theTreeShowsTheToolOfTheActionEachTime) {
    auto &tree = child<QTreeWidget>(form, "tvwTools");
    const auto shows = [&](const char *token) {
        QTreeWidgetItem *item = tree.currentItem();
        return item != nullptr && item->text(0) == tools.tool(QLatin1StringView(token))->Name() &&
               item->isSelected() && tree.viewport()->rect().contains(tree.visualItemRect(item));
    };
    for (int i = 0; i < 2; ++i) {
        for (const char *token : {"soALP", "pbPST"})
            buttons.Item(1)->Add(action(token));
        open(0);
        EXPECT_TRUE(shows("soALP")) << i;
        press("cmdRight");
        EXPECT_TRUE(shows("pbPST")) << i;
        press("cmdLeft");
        EXPECT_TRUE(shows("soALP")) << i;
        form.reject();
    }
    open(7);
    EXPECT_EQ(tree.currentItem(), nullptr) << "a blank Action has no tool";
}

TEST_F(EditorStory, anExampleToBeginWith) {
    open(4);
    auto &examples = child<QPushButton>(form, "cmdLoadExample");
    EXPECT_TRUE(examples.isVisible());
    examples.menu()->actions().at(0)->trigger();
    EXPECT_FALSE(examples.isVisible());
    press("cmdOK");
    EXPECT_EQ(reread(5).Name, "Clean mail");
    EXPECT_GT(reread(5).Count(), 2);
}

} // namespace
} // namespace tolvo
