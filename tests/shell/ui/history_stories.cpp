// SPDX-License-Identifier: MIT
// The menus of Undo and Redo, and the key for whole runs.
#include "platform/desktop/CommandKeys.h"
#include "tests/shell/ui/MainWindowStory.h"

#include <QMenu>

using namespace tolvo;

namespace {

class HistoryStory : public MainWindowStory {
  protected:
    static QMenu &opened(const char *name) {
        auto &menu = child<QMenu>(*window(), name);
        emit menu.aboutToShow();
        return menu;
    }
    static QString entries(const char *name) {
        QStringList list;
        for (const QAction *action : opened(name).actions()) {
            if (action->isEnabled() && !action->isSeparator())
                list += action->text().section(u'\t', 0, 0);
        }
        return list.join('|');
    }
    static void choose(const char *name, const QString &entry) {
        for (QAction *action : opened(name).actions()) {
            if (action->text().startsWith(entry))
                return action->trigger();
        }
        ADD_FAILURE() << "no entry " << entry.toStdString();
    }
};

TEST_F(HistoryStory, goesAsFarAsTheUserChooses) {
    set(store, settingKeys.powerButton.name, QStringLiteral("A && B"), 1);
    set(store, settingKeys.action.token, QStringLiteral("ccUPP"), 1, QStringLiteral("1"));
    const CommandKeys commandKeys;
    run(QStringLiteral("one"), [] {
        auto &redoArrow = child<QWidget>(*window(), "cmdRedoList");
        EXPECT_FALSE(redoArrow.isEnabled());
        EXPECT_EQ(entries("cmdUndoList_menu"), "");
        QTest::keyClicks(text(), QStringLiteral("x "));
        QTest::keyClick(text(), Qt::Key_F1, Qt::AltModifier);
        EXPECT_EQ(text()->toPlainText(), "X ONE");
        QTest::keyClicks(text(), QStringLiteral("y"));
        EXPECT_EQ(entries("cmdUndoList_menu"),
                  "Before the &last PowerButton|typing|PowerButton 1: A &&&& B|typing");
        choose("cmdUndoList_menu", "PowerButton 1");
        EXPECT_EQ(text()->toPlainText(), "x one");
        EXPECT_TRUE(redoArrow.isEnabled());
        EXPECT_EQ(entries("cmdRedoList_menu"), "PowerButton 1: A &&&& B|typing");
        choose("cmdRedoList_menu", "typing");
        EXPECT_EQ(text()->toPlainText(), "yX ONE");
        // With a text it would be AltGr on Windows.
        QTest::sendKeyEvent(QTest::Click, text(), Qt::Key_Z, QString(),
                            Qt::ControlModifier | Qt::AltModifier);
        EXPECT_EQ(text()->toPlainText(), "x one");
        QTest::keyClick(text(), Qt::Key_D, Qt::AltModifier);
    });
}

} // namespace
