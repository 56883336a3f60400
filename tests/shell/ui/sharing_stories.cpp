// SPDX-License-Identifier: MIT
// PowerButtons on their way from one user to another, through the clipboard and through files.
#include "powerbuttons/CPowerButtonMethods.h"
#include "tests/shell/ui/MainWindowStory.h"

#include <QComboBox>
#include <QDropEvent>
#include <QLabel>
#include <QMenu>
#include <QMimeData>
#include <QUrl>

using namespace tolvo;

namespace {

class SharingStory : public MainWindowStory {
  protected:
    static void leave() { QTest::keyClick(text(), Qt::Key_D, Qt::AltModifier); }
    [[nodiscard]] QString nameOf(int number) const {
        return get(store, settingKeys.powerButton.name, number);
    }
    void define(int number, const QString &name, const QString &token) {
        set(store, settingKeys.powerButton.name, name, number);
        set(store, settingKeys.action.token, token, number, QStringLiteral("1"));
    }
    /// Chooses an entry of the menu "More"; entries of its own menus as well.
    static void choose(const QString &entry, const std::function<void(QDialog &)> &act = {}) {
        auto *menu = window()->findChild<QMenu *>(QStringLiteral("mnuPowerButtons"));
        emit menu->aboutToShow();
        for (QAction *action : window()->findChildren<QAction *>()) {
            if (action->text().remove(u'&') != entry)
                continue;
            action->trigger(); // the dialog comes once the menu is gone
            if (act)
                withModal<QDialog>(act);
            return QCoreApplication::processEvents();
        }
        ADD_FAILURE() << "no entry " << entry.toStdString();
    }
    static QString shown(QDialog &dialog, const char *view) {
        return child<QPlainTextEdit>(dialog, view).toPlainText();
    }
    static void choosePlace(QDialog &dialog, int number) {
        child<QComboBox>(dialog, "cboPlace").setCurrentIndex(number - 1);
    }
};

TEST_F(SharingStory, throughTheClipboardIntoAnotherRow) {
    define(2, QStringLiteral("<b>Loud</b>"), QStringLiteral("ccUPP"));
    define(5, QStringLiteral("Low"), QStringLiteral("ccLOW"));
    run(QStringLiteral("Some Text"), [this] {
        choose("Share...", [](QDialog &dialog) {
            EXPECT_EQ(child<QComboBox>(dialog, "cboShared").currentText(), "2: <b>Loud</b>");
            EXPECT_TRUE(shown(dialog, "txtShared").contains("step: ccUPP # UPPER CASE\n"));
            click(dialog, "cmdCopyShared");
        });
        store.DeleteSetting(QStringLiteral("Tolvo"), QStringLiteral("PowerButtons\\Button 2"));

        choose("Load from Clipboard...", [](QDialog &dialog) {
            EXPECT_EQ(child<QLabel>(dialog, "labSharedName").text(), "<b>Loud</b>");
            EXPECT_EQ(child<QLabel>(dialog, "labSharedName").textFormat(), Qt::PlainText);
            EXPECT_EQ(shown(dialog, "txtSteps"), "1. UPPER CASE");
            EXPECT_EQ(child<QComboBox>(dialog, "cboPlace").currentText(), "1: empty");
            EXPECT_FALSE(child<QLabel>(dialog, "labConsequence").isVisible());
            click(dialog, "cmdTake");
        });
        EXPECT_EQ(nameOf(1), "<b>Loud</b>");
        QTest::keyClick(text(), Qt::Key_F1, Qt::AltModifier);
        EXPECT_EQ(text()->toPlainText(), "SOME TEXT");

        for (const BoxAnswer answer : {BoxAnswer::No, BoxAnswer::Yes}) {
            boxes.answers = {answer};
            choose("Load from Clipboard...", [](QDialog &dialog) {
                choosePlace(dialog, 5);
                EXPECT_TRUE(child<QLabel>(dialog, "labConsequence").isVisible());
                click(dialog, "cmdTake");
            });
            EXPECT_EQ(boxes.said(), "Replace PowerButton 5 'Low' with '<b>Loud</b>'?");
            EXPECT_EQ(nameOf(5), answer == BoxAnswer::Yes ? "<b>Loud</b>" : "Low");
        }
        leave();
    });
}

TEST_F(SharingStory, refusesWhatIsDamagedByTheLine) {
    run({}, [this] {
        QApplication::clipboard()->setText("Tolvo PowerButton 1\nname: x\nrun: ls\n");
        choose("Load from Clipboard...");
        EXPECT_EQ(boxes.said(),
                  "The clipboard can't be taken as a PowerButton.\r\n\r\nLine 3: \"run\" is not known here.");
        leave();
    });
}

TEST_F(SharingStory, aFileIsDroppedOnItsPlace) {
    run(QStringLiteral("tea;2"), [this] {
        QMimeData dragged;
        dragged.setUrls(
            {QUrl::fromLocalFile(programs + QStringLiteral("/PowerButtons/web-title.tolvobutton"))});
        auto &place = child<QWidget>(*window(), "imgPower_3");
        QDragEnterEvent enter(QPoint(9, 9), Qt::CopyAction, &dragged, Qt::LeftButton, {});
        QApplication::sendEvent(&place, &enter);
        EXPECT_TRUE(enter.isAccepted());
        QDropEvent drop(QPointF(9, 9), Qt::CopyAction, &dragged, Qt::LeftButton, {});
        QApplication::sendEvent(&place, &drop);
        QTimer::singleShot(0, [] {
            withModal<QDialog>([](QDialog &dialog) {
                EXPECT_EQ(child<QComboBox>(dialog, "cboPlace").currentText(), "4: empty");
                click(dialog, "cmdTake");
            });
        });
        EXPECT_TRUE(QTest::qWaitFor([this] { return nameOf(4) == "Title for the web"; }));

        choose("Table columns", [](QDialog &dialog) { click(dialog, "cmdTake"); });
        EXPECT_EQ(nameOf(1), "Table columns");
        leave();
    });
}

} // namespace
