// SPDX-License-Identifier: MIT
// The keys of the main window, wherever its focus is.
#include "platform/desktop/PlainTextBox.h"
#include "shell/ui/KeySheetWindow.h"
#include "tests/shell/ui/MainWindowStory.h"
#include "tests/support/line_ends.h"

#include <QAction>
#include <QMenu>
#include <QSplitter>
#include <QTreeWidget>

using namespace tolvo;

namespace {

class KeyStory : public MainWindowStory {
  protected:
    static QString focused() { return window()->focusWidget()->objectName(); }
    static void press(Qt::Key key, Qt::KeyboardModifiers held = {}) {
        QTest::keyClick(window()->focusWidget(), key, held);
    }
    static void focus(const char *name) { child<QWidget>(*window(), name).setFocus(); }
    static void close() {
        focus("txtText1");
        QTest::keyClick(text(), Qt::Key_D, Qt::AltModifier);
    }
};

TEST_F(KeyStory, workOnTheTextFromEveryControl) {
    run(QStringLiteral("one\ntwo"), [] {
        for (const char *control :
             {"imgFavourites_3", "imgPower_2", "lblToolbox_1", "cmdCancel", "imgOptions"}) {
            SCOPED_TRACE(control);
            focus(control);
            press(Qt::Key_A, Qt::ControlModifier);
            press(Qt::Key_U, Qt::ControlModifier);
            EXPECT_EQ(text()->toPlainText(), QStringLiteral("ONE\nTWO"));
            press(Qt::Key_Z, Qt::ControlModifier);
            press(Qt::Key_Down, Qt::AltModifier);
            if (QLatin1StringView(control) != QLatin1StringView("lblToolbox_1")) // it finds tools by letters
                press(Qt::Key_X);                                                // types nothing
            press(Qt::Key_Backspace);
            press(Qt::Key_R, Qt::ControlModifier); // repeats
            press(Qt::Key_Z, Qt::ControlModifier);
            EXPECT_EQ(focused(), QLatin1StringView(control)) << "the focus stays";
            press(Qt::Key_Escape);
            EXPECT_EQ(focused(), QStringLiteral("txtText1"));
            EXPECT_EQ(text()->toPlainText(), QStringLiteral("one\ntwo"));
        }
        close();
    });
}

TEST_F(KeyStory, moveTheEdgeOfThePanelAndAmongTheIconsBesideTheFavourites) {
    run(QStringLiteral("one"), [] {
        const auto panel = [] { return child<QSplitter>(*window(), "panelSplitter").sizes().front(); };
        window()->resize(1000, 600);
        const int first = panel();
        focus("panelEdge");
        press(Qt::Key_Right);
        EXPECT_GT(panel(), first);
        press(Qt::Key_Left);
        EXPECT_EQ(panel(), first);
        press(Qt::Key_End);
        EXPECT_GT(panel(), first + 100) << "as far as it goes";
        press(Qt::Key_Home);
        EXPECT_LT(panel(), first);
        press(Qt::Key_Tab);
        EXPECT_EQ(focused(), QStringLiteral("imgFavourites_0"));
        press(Qt::Key_Tab, Qt::ShiftModifier);
        EXPECT_EQ(focused(), QStringLiteral("lblToolbox_1")) << "the edge is no stop";
        focus("imgFavourites_0");
        press(Qt::Key_Tab);
        EXPECT_EQ(focused(), QStringLiteral("imgWordwrap"));
        press(Qt::Key_Right);
        EXPECT_EQ(focused(), QStringLiteral("imgOptions"));
        press(Qt::Key_End);
        EXPECT_EQ(focused(), QStringLiteral("imgAbout"));
        press(Qt::Key_Tab);
        EXPECT_EQ(focused(), QStringLiteral("cmdPlace")) << "one stop";
        close();
    });
}

TEST_F(KeyStory, enterPressesTheButtonWithTheFocus) {
    run(QStringLiteral("abc  "), [] {
        focus("imgFavourites_4");
        press(Qt::Key_Return);
        EXPECT_EQ(text()->toPlainText(), QStringLiteral("abc"));
        focus("cmdUndo");
        press(Qt::Key_Return);
        focus("cmdRedo");
        press(Qt::Key_A, Qt::ControlModifier);
        press(Qt::Key_U, Qt::ControlModifier); // nothing is left to redo
        EXPECT_EQ(text()->toPlainText(), QStringLiteral("ABC  "));
        EXPECT_EQ(focused(), QStringLiteral("cmdUndo"));
        focus("imgFavourites_4");
        press(Qt::Key_Return);
        focus("imgWordwrap");
        press(Qt::Key_Enter, Qt::KeypadModifier);
        EXPECT_EQ(text()->objectName(), QStringLiteral("txtTextWW"));
        press(Qt::Key_Return); // in the text it is a line end
        EXPECT_EQ(text()->toPlainText(), QStringLiteral("\nABC"));
        focus("cmdClose");
        press(Qt::Key_Return);
    });
    EXPECT_EQ(QApplication::clipboard()->text(), test::inLinesOfSystem(QStringLiteral("\nABC")));
}

TEST_F(KeyStory, arrowsMoveInsideARowThatIsOneStop) {
    run({}, [] {
        focus("imgFavourites_0");
        struct Row {
            Qt::Key key;
            Qt::KeyboardModifiers held;
            const char *focus;
        };
        const Row rows[] = {
            {Qt::Key_Left, {}, "imgFavourites_0"},
            {Qt::Key_Right, {}, "imgFavourites_1"},
            {Qt::Key_End, {}, "imgFavourites_10"},
            {Qt::Key_Down, {}, "imgFavourites_10"},
            {Qt::Key_Up, {}, "imgFavourites_9"},
            {Qt::Key_Tab, {}, "imgWordwrap"},
            {Qt::Key_Tab, Qt::ShiftModifier, "imgFavourites_9"},
            {Qt::Key_Home, {}, "imgFavourites_0"},
        };
        for (const Row &row : rows) {
            press(row.key, row.held);
            EXPECT_EQ(focused(), QLatin1StringView(row.focus)) << row.key;
        }
        close();
    });
}

TEST_F(KeyStory, f6WalksTheParts) {
    run({}, [] {
        focus("imgPower_5"); // the row remembers
        focus("txtText1");
        for (const char *part : {"imgFavourites_0", "lblToolbox_1", "panelEdge", "firstSteps_0", "imgPower_5",
                                 "cmdClose", "txtText1"}) {
            press(Qt::Key_F6);
            EXPECT_EQ(focused(), QLatin1StringView(part));
        }
        for (const char *part : {"cmdClose", "imgPower_5", "firstSteps_0", "panelEdge", "lblToolbox_1"}) {
            press(Qt::Key_F6, Qt::ShiftModifier);
            EXPECT_EQ(focused(), QLatin1StringView(part));
        }
        close();
    });
}

TEST_F(KeyStory, theSheetListsThemAll) {
    run({}, [] {
        withModal<KeySheetWindow>([](KeySheetWindow &sheet) {
            auto &list = child<QTreeWidget>(sheet, "keyList");
            const auto shown = [&list] {
                QStringList rows;
                for (QTreeWidgetItemIterator item(&list); *item; ++item)
                    rows += (*item)->text(0) + u'|' + (*item)->text(1);
                return rows;
            };
            for (const char *row : {"Copy|Ctrl-C", "Go to the next part of the window|F6", "Undo|Alt-U",
                                    "Run PowerButton 1 to 8|Alt-F1 to F8, Ctrl-1 to 8"})
                EXPECT_TRUE(shown().contains(QLatin1StringView(row))) << row;
            EXPECT_LE(sheet.height(), sheet.screen()->availableSize().height());
            type(sheet, "keyFilter", QStringLiteral("ctrl-k"));
            EXPECT_EQ(shown(),
                      QStringList({QStringLiteral("Text|"), QStringLiteral("Initial capitals|Ctrl-K")}));
            QTest::keyClick(sheet.focusWidget(), Qt::Key_Down);
            EXPECT_EQ(list.currentItem()->text(1), QStringLiteral("Ctrl-K"));
            QTest::keyClick(sheet.focusWidget(), Qt::Key_Escape);
            EXPECT_FALSE(sheet.isVisible());
        });
        press(Qt::Key_Question, Qt::ControlModifier | Qt::ShiftModifier);
        bool again = false;
        withModal<KeySheetWindow>([&again](KeySheetWindow &) { again = true; });
        press(Qt::Key_F1, Qt::ControlModifier);
        EXPECT_TRUE(again) << "the key for layouts that have another command at the sign";
        close();
    });
}

TEST_F(KeyStory, theMenuOfTheTextOffersWhatTheWindowHas) {
    run(QStringLiteral("a  b "), [] {
        const auto menu = static_cast<PlainTextBox *>(text())->contextMenu();
        QStringList names;
        QAction *trim = nullptr;
        for (QAction *action : menu->actions()) {
            names += action->text().section(u'\t', 0, 0);
            if (names.last().startsWith(QStringLiteral("Trim trailing")))
                trim = action;
        }
        EXPECT_EQ(names.mid(0, 2), QStringList({QStringLiteral("&Undo"), QStringLiteral("&Redo")}));
        EXPECT_EQ(names.last(), QStringLiteral("Keyboard shortcuts"));
        ASSERT_NE(trim, nullptr);
        trim->trigger();
        EXPECT_EQ(text()->toPlainText(), QStringLiteral("a b"));
        for (QAction *action : menu->actions()) {
            if (action->text().startsWith(QStringLiteral("Copy and Close")))
                action->trigger();
        }
    });
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("a b"));
}

} // namespace
