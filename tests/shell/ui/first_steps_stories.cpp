// SPDX-License-Identifier: MIT
// The line that says what PowerButtons are for, as long as there are none.
#include "powerbuttons/CPowerButtonMethods.h"
#include "shell/ui/hint_strip.h"
#include "tests/shell/ui/MainWindowStory.h"

using namespace tolvo;

namespace {

class FirstStepsStory : public MainWindowStory {
  protected:
    static bool isShown() {
        const auto *line = window()->findChild<HintStrip *>(QStringLiteral("firstSteps"));
        return line != nullptr && line->isVisible();
    }
    static void leave() { QTest::keyClick(text(), Qt::Key_D, Qt::AltModifier); }
    [[nodiscard]] QString nameOf(int number) const {
        return get(store, settingKeys.powerButton.name, number);
    }
    void define(int number, const QString &name) { set(store, settingKeys.powerButton.name, name, number); }
};

TEST_F(FirstStepsStory, theExamplesAreLoadedAndRun) {
    run(QStringLiteral("> one\n> two"), [this] {
        ASSERT_TRUE(isShown());
        child<QWidget>(*window(), "firstSteps_0").setFocus();
        define(2, QStringLiteral("Of another run"));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        EXPECT_FALSE(isShown());
        EXPECT_TRUE(text()->hasFocus());
        EXPECT_EQ((QStringList{nameOf(1), nameOf(2), nameOf(3), nameOf(4), nameOf(5)}),
                  (QStringList{"Clean mail", "Of another run", "Tidy text", "Web to plain", nameOf(8)}));
        QTest::keyClick(text(), Qt::Key_F1, Qt::AltModifier);
        EXPECT_EQ(text()->toPlainText(), QStringLiteral("one two"));
        leave();
    });
    run({}, [] {
        EXPECT_FALSE(isShown());
        leave();
    });
}

TEST_F(FirstStepsStory, closedItNeverComesBack) {
    run({}, [] {
        ASSERT_TRUE(isShown());
        EXPECT_LE(window()->minimumSizeHint().width(), 632) << "half of 1280, less the frame";
        child<QAbstractButton>(*window(), "firstSteps_close").click();
        EXPECT_FALSE(isShown());
        leave();
    });
    run({}, [] {
        EXPECT_FALSE(isShown());
        leave();
    });
    EXPECT_EQ(nameOf(1), nameOf(8)) << "nothing was loaded";
}

TEST_F(FirstStepsStory, isForThoseWhoHaveNoPowerButton) {
    define(8, QStringLiteral("Mine"));
    run({}, [] {
        EXPECT_FALSE(isShown());
        leave();
    });
}

} // namespace
