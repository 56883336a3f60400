// SPDX-License-Identifier: MIT
#include "platform/desktop/PlainTextBox.h"
#include "powerbuttons/step_effects.h"
#include "powerbuttons/ui/frmPowerButton.h"
#include "powerbuttons/ui/step_list.h"
#include "tests/powerbuttons/world.h"
#include "tests/ui/user.h"

#include <QLabel>
#include <QLineEdit>

namespace tolvo {
namespace {

/// Answers when the test says so.
class LateEffects final : public StepEffects {
  public:
    void ask(const CPowerButton &button, int position, const Deliver &deliver) override {
        asked = QString("%1/%2").arg(actionsOfStep(button, position)).arg(button.Count());
        m_deliver = deliver;
    }
    void cancel() override { m_deliver = nullptr; }
    [[nodiscard]] bool isWaiting() const { return m_deliver != nullptr; }
    void answer(const StepEffect &effect) { m_deliver(effect); }
    QString asked;

  private:
    static QString actionsOfStep(const CPowerButton &button, int position) {
        const auto step = button.Item(position);
        return QString("%1 %2 %3")
            .arg(position)
            .arg(step->Tool() ? step->Tool()->Token() : "-")
            .arg(static_cast<int>(step->DlgOption()));
    }
    Deliver m_deliver;
};

class StepListStory : public World {
  protected:
    StepListStory() {
        buttons.Item(1)->Name = "Mine";
        for (const char *token : {"ccUPP", "foTRM", "soALP"})
            buttons.Item(1)->Add(action(token));
        form.init(0);
        activate(form);
        list.setFocus();
    }
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) { QTest::keyClick(&list, key, modifiers); }
    /// The lines, the current one in brackets, one without its tick with a minus.
    QString shown() const {
        QStringList lines;
        for (int row = 0; row < list.count(); ++row) {
            QString line = list.item(row)->text();
            if (list.item(row)->checkState() == Qt::Unchecked)
                line.prepend('-');
            lines += row == list.currentRow() ? '[' + line + ']' : line;
        }
        return lines.join(' ');
    }
    QString label(const char *name) { return child<QLabel>(form, name).text(); }
    QString tool() { return label("labTool"); }
    QPoint placeOf(int row) const { return list.visualItemRect(list.item(row)).center(); }

    frmPowerButton form{buttons, methods, tools, boxes, settings};
    StepList &list = child<StepList>(form, "lstActions");
};

TEST_F(StepListStory, byKeys) {
    EXPECT_EQ(shown(), "[1. UPPER CASE] 2. Trim lines 3. Sort A to Z");
    key(Qt::Key_Down);
    EXPECT_EQ(tool(), "Trim lines");
    key(Qt::Key_Up, Qt::ControlModifier);
    EXPECT_EQ(shown(), "[1. Trim lines] 2. UPPER CASE 3. Sort A to Z");
    key(Qt::Key_Up, Qt::ControlModifier); // no place above
    key(Qt::Key_Space);
    key(Qt::Key_D, Qt::ControlModifier);
    EXPECT_EQ(shown(), "-1. Trim lines [-2. Trim lines] 3. UPPER CASE 4. Sort A to Z");
    key(Qt::Key_X, Qt::ControlModifier);
    key(Qt::Key_Delete);
    key(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(shown(), "-1. Trim lines 2. Sort A to Z [-3. Trim lines]");
    click(form, "cmdLeft");
    EXPECT_EQ(list.currentRow(), 1);
    press(form, Qt::Key_Z, Qt::ControlModifier);
    press(form, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(shown(), "-1. Trim lines [2. UPPER CASE] 3. Sort A to Z");
    press(form, Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(shown(), "-1. Trim lines [2. Sort A to Z]");
    click(form, "cmdOK");
    EXPECT_TRUE(reread(1).Item(1)->switchedOff());
    EXPECT_EQ(actionsOf(reread(1)), "foTRM soALP");
}

TEST_F(StepListStory, keysInTheNameAreThoseOfTheName) {
    auto &name = child<QLineEdit>(form, "txtName");
    key(Qt::Key_Delete);
    name.setFocus();
    QTest::keyClicks(&name, "abc");
    QTest::keyClick(&name, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(list.count(), 2);
}

TEST_F(StepListStory, byMouse) {
    QTest::mousePress(list.viewport(), Qt::LeftButton, {}, placeOf(1));
    QTest::mouseRelease(list.viewport(), Qt::LeftButton, {}, QPoint(-50, -50));
    EXPECT_EQ(tool(), "Trim lines") << "the row that is marked";
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, placeOf(2));
    EXPECT_EQ(tool(), "Sort A to Z");
    const QPoint tick(list.visualItemRect(list.item(0)).left() + 8, placeOf(0).y());
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, tick);
    EXPECT_EQ(shown(), "[-1. UPPER CASE] 2. Trim lines 3. Sort A to Z");
    boxes.expect("Please select a tool");
    list.setCurrentRow(2);
    click(form, "cmdAddAction");
    child<QAction>(form, "mnuAddAtEnd").trigger();
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, placeOf(0));
    EXPECT_EQ(list.currentRow(), 3) << "the blank one stays until it has a tool";
}

TEST_F(StepListStory, theEffectOfTheStepStandsBelow) {
    LateEffects effects;
    form.showEffectsOf(effects);
    form.init(0);
    EXPECT_EQ(effects.asked, "1 ccUPP 0/3");
    auto &before = child<PlainTextBox>(form, "txtBefore");
    auto &after = child<PlainTextBox>(form, "txtAfter");
    effects.answer({"one|", "ONE|", {{0, 3}}, {{0, 3}}, {0, 4}, "4 characters"});
    EXPECT_EQ(before.Text(), "one|");
    EXPECT_EQ(after.Text(), "ONE|");
    EXPECT_EQ(after.SelLength(), 0) << "a selection hides the tint";
    EXPECT_EQ(after.tint(TintLayer::Changes).size(), 1);
    EXPECT_EQ(label("labEffect"), "4 characters");
    key(Qt::Key_Down);
    EXPECT_EQ(effects.asked, "2 foTRM 0/3");
    QTest::qWait(400);
    EXPECT_EQ(after.Text(), QString()) << "an old effect";
    effects.answer({"one", "one", {}, {}, {1, 2}, "x"});
    EXPECT_EQ(after.SelText(), "ne");
    QTest::keyClick(&after, Qt::Key_A);
    EXPECT_EQ(after.Text(), "one");
    key(Qt::Key_D, Qt::ControlModifier);
    EXPECT_EQ(effects.asked, "3 foTRM 0/4");
    form.reject();
    EXPECT_FALSE(effects.isWaiting());
}

} // namespace
} // namespace tolvo
