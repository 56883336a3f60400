// SPDX-License-Identifier: MIT
// The left column offscreen: the field, the list of results, the panel, the explanation.
#include "shell/ui/found_tools_list.h"
#include "shell/ui/panel_view.h"
#include "shell/ui/row_painting.h"
#include "shell/ui/tool_explanation.h"
#include "shell/ui/tool_finder_view.h"
#include "tests/support/User.h"
#include "tests/ui/user.h"
#include "widgets/contrast.h"
#include "widgets/themed_icon.h"

#include <QAccessible>

using namespace tolvo;

namespace {

class Column : public testing::Test {
  protected:
    Column() {
        toolbox.setHooks({.rowsChanged = [this] { panel->showRows(toolbox); }, .delay = {}});
        toolbox.init(test::realCatalogue().panelItems());
        panel->onClick = [this](int row, bool right) {
            user.session.bRightButton = right;
            user.session.lblToolbox_Click(toolbox, row);
        };
        column.attach(user.session, test::dataFolder() + QStringLiteral("/OtherWords.txt"));
        column.resize(230, 560);
        activate(column);
    }
    QLineEdit &field() { return child<QLineEdit>(column, "txtFindTool"); }
    QString explained() {
        return child<ToolExplanation>(column, "labExplanation").accessibleName().replace(u'\n', u'|');
    }
    /// The rows of the list, the chosen one in brackets.
    QString found() {
        auto &list = child<FoundToolsList>(column, "lstFoundTools");
        QStringList rows;
        for (int i = 0; i < list.count() && list.isVisible(); ++i) {
            const QString name = list.model()->index(i, 0).data().toString();
            rows += i == list.chosen() ? QLatin1Char('[') + name + QLatin1Char(']') : name;
        }
        return rows.join(QStringLiteral(", "));
    }
    QString focusedRow() {
        auto *row = qobject_cast<PanelRowButton *>(QApplication::focusWidget());
        return row ? row->shown().text : QString();
    }
    void keys(std::initializer_list<Qt::Key> pressed) {
        for (const Qt::Key key : pressed)
            QTest::keyClick(QApplication::focusWidget(), key);
    }

    test::User user{QStringLiteral("«»b|a")};
    cToolbox toolbox;
    QWidget window;
    PanelView *panel = new PanelView(&window);
    ToolFinderView column{*panel, nullptr};
};

TEST_F(Column, runsWhatIsChosenAndShowsThePanelAgain) {
    column.begin();
    EXPECT_TRUE(panel->isVisible()) << "nothing was used yet";
    QTest::keyClicks(&field(), QStringLiteral("sort"));
    EXPECT_FALSE(panel->isVisible());
    EXPECT_EQ(found().section(QLatin1Char(','), 0, 0), QStringLiteral("[Sort A to Z]"));
    EXPECT_TRUE(explained().startsWith(QStringLiteral("Sort A to Z|Put the lines in alphabetical order")));
    EXPECT_TRUE(field().accessibleDescription().contains(QStringLiteral("1 of ")));
    keys({Qt::Key_Up, Qt::Key_PageDown, Qt::Key_PageUp, Qt::Key_Return});
    user.sees(QStringLiteral("«»a|b"), QStringLiteral("Lines sorted"));
    EXPECT_TRUE(panel->isVisible());
    EXPECT_EQ(field().text(), QString());

    QTest::keyClicks(&field(), QStringLiteral("xylophone"));
    EXPECT_EQ(found(), QString());
    EXPECT_EQ(field().accessibleDescription(), QStringLiteral("No tool matches"));
    keys({Qt::Key_Return, Qt::Key_Down, Qt::Key_Escape});
    EXPECT_TRUE(panel->isVisible());

    user.session.bSessionOver = true;
    QTest::keyClicks(&field(), QStringLiteral("sort"));
    EXPECT_TRUE(panel->isVisible()) << "nothing runs after the end";
}

TEST_F(Column, listsTheLastUsedUntilTheTabKeyGoesOn) {
    for (const char *token : {"ccUPP", "foTRA", "ccLOW", "foPAR", "foSSP", "edPLA", "foTRA"})
        user.runs(QLatin1StringView(token));
    column.begin();
    EXPECT_EQ(found(), QStringLiteral(
                           "[Trim line ends], Plain characters, Single spaces, Join paragraphs, lower case"));
    keys({Qt::Key_Tab});
    EXPECT_EQ(focusedRow(), QStringLiteral("Capitals"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_FALSE(panel->isVisible());
    keys({Qt::Key_Escape});
    EXPECT_TRUE(panel->isVisible());
}

TEST_F(Column, walksThePanelAsOneStop) {
    child<QWidget>(column, "lblToolbox_1").setFocus();
    keys({Qt::Key_End});
    EXPECT_EQ(focusedRow(), QStringLiteral("Codes & Signs"));
    keys({Qt::Key_Up, Qt::Key_Up});
    EXPECT_EQ(explained(), QStringLiteral("Check|Punctuation, spelling, statistics"));
    keys({Qt::Key_Right}); // opens it
    EXPECT_EQ(focusedRow(), QStringLiteral("Check"));
    keys({Qt::Key_Right, Qt::Key_Down});
    EXPECT_EQ(focusedRow(), QStringLiteral("Spelling..."));
    EXPECT_TRUE(explained().endsWith(QStringLiteral("Right click: with last settings")));
    int stops = 0;
    for (const auto *row : panel->findChildren<PanelRowButton *>())
        stops += row->focusPolicy() == Qt::NoFocus ? 0 : 1;
    EXPECT_EQ(stops, 1);
    toolbox.Layout(1); // the row with the focus goes away
    EXPECT_NE(focusedRow(), QString());
    keys({Qt::Key_Home, Qt::Key_Left});
    EXPECT_EQ(focusedRow(), QStringLiteral("Capitals"));
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("j"));
    EXPECT_EQ(field().text(), QStringLiteral("j"));
    EXPECT_TRUE(field().hasFocus());
}

TEST_F(Column, isATreeOfItsVisibleRows) {
    QAccessibleInterface *tree = QAccessible::queryAccessibleInterface(panel);
    EXPECT_EQ(tree->role(), QAccessible::Tree);
    EXPECT_EQ(tree->childCount(), 8);
    toolbox.Layout(6);
    EXPECT_EQ(tree->childCount(), 12);
    QAccessibleInterface *category = tree->child(5);
    EXPECT_EQ(category->role(), QAccessible::TreeItem);
    EXPECT_TRUE(category->state().expanded);
    EXPECT_TRUE(tree->child(0)->state().collapsed);
    EXPECT_FALSE(tree->child(6)->state().expandable);
    EXPECT_EQ(tree->indexOfChild(category), 5);
    category->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(category->state().collapsed);
    EXPECT_EQ(tree->child(8), nullptr);
}

TEST(Accent, canBeReadOnEveryGround) {
    const struct {
        QColor window, base, text;
    } rows[] = {{Qt::white, Qt::white, Qt::black},
                {QColor(45, 45, 48), QColor(30, 30, 32), QColor(235, 235, 235)},
                {QColor(45, 45, 48), Qt::white, Qt::black}, // mixed
                {QColor(240, 240, 240), QColor(30, 30, 32), Qt::white},
                {Qt::white, QColor(112, 112, 112), Qt::white}};
    for (const auto &row : rows) {
        QPalette palette;
        palette.setColor(QPalette::Window, row.window);
        palette.setColor(QPalette::Base, row.base);
        palette.setColor(QPalette::Text, row.text);
        EXPECT_GE(contrast(accentOn(palette, QPalette::Base), row.base), 4.5)
            << row.base.name().toStdString();
    }
}

} // namespace
