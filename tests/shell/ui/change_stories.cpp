// SPDX-License-Identifier: MIT
// What the window shows of the changes that tools make.
#include "shell/ui/change_view.h"
#include "tests/shell/ui/MainWindowStory.h"
#include "widgets/contrast.h"

#include <QAbstractButton>
#include <QLabel>
#include <QProxyStyle>
#include <QScrollBar>

using namespace Qt::StringLiterals;
using namespace tolvo;

namespace {

class ChangeStory : public MainWindowStory {
  protected:
    static void titleCase() { child<QAbstractButton>(*window(), "imgFavourites_2").click(); }
    static QString hint() { return child<QLabel>(*window(), "labHint").text(); }
    static QWidget *overlay() { return text()->findChild<QWidget *>(u"textOverlay"_s); }
    static QImage picture() { return text()->viewport()->grab().toImage(); }
    static void close() { QTest::keyClick(text(), Qt::Key_D, Qt::AltModifier); }
};

TEST_F(ChangeStory, changedPlacesAreTintedForAMoment) {
    run(u"the cat\nsat"_s, [] {
        text()->setCursorWidth(0); // it blinks
        titleCase();
        EXPECT_EQ(text()->toPlainText(), u"The Cat\nSat"_s);
        EXPECT_EQ(hint(), u"3 places changed"_s);
        const QImage tinted = picture();
        QTest::keyClick(text(), Qt::Key_Shift);
        const QImage plain = picture();
        EXPECT_NE(tinted, plain) << "a key ends it";
        titleCase();
        EXPECT_EQ(hint(), u"Nothing changed"_s);
        EXPECT_EQ(picture(), plain);
        QTest::keyClick(text(), Qt::Key_Z, Qt::ControlModifier);
        titleCase();
        EXPECT_EQ(picture(), tinted);
        QTest::mouseClick(text()->viewport(), Qt::LeftButton, {}, {1, 1});
        EXPECT_EQ(picture(), plain) << "a click too";
        close();
    });
}

TEST_F(ChangeStory, theTextBeforeShowsWhileItsKeyIsHeld) {
    run(u"the cat\n"_s.repeated(200), [] {
        const auto press = [] { QTest::keyPress(text(), Qt::Key_F8); };
        press();
        EXPECT_EQ(hint(), u"No tool has changed the text yet"_s);
        QTest::keyRelease(text(), Qt::Key_F8);
        EXPECT_EQ(overlay(), nullptr);

        titleCase();
        QTextCursor cursor = text()->textCursor();
        cursor.setPosition(803);
        cursor.setPosition(809, QTextCursor::KeepAnchor);
        text()->setTextCursor(cursor);
        text()->verticalScrollBar()->setValue(90);
        const QString after = text()->toPlainText();
        const std::function<void()> ends[] = {
            [] { QTest::keyRelease(text(), Qt::Key_F8); },
            [] { QTest::keyClick(text(), Qt::Key_Shift); },
            [] { QTest::mousePress(overlay(), Qt::LeftButton); },
            [] {
                child<QWidget>(*window(), "cmdCancel").setFocus();
                text()->setFocus();
            },
        };
        for (const auto &end : ends) {
            press();
            ASSERT_TRUE(overlay()->isVisible());
            auto &shown = child<PlainTextBox>(*overlay(), "txtOverlay");
            EXPECT_EQ(shown.Text(), u"the cat\r\n"_s.repeated(200));
            EXPECT_EQ(shown.verticalScrollBar()->value(), 90);
            EXPECT_EQ(shown.accessibleName(), u"Text before Title case"_s);
            EXPECT_TRUE(text()->hasFocus());
            end();
            EXPECT_FALSE(overlay()->isVisible());
            EXPECT_EQ(text()->toPlainText(), after);
            EXPECT_EQ(text()->textCursor().anchor(), 803);
            EXPECT_EQ(text()->textCursor().position(), 809);
            EXPECT_EQ(text()->verticalScrollBar()->value(), 90);
        }
        QTest::keyClick(text(), Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(text()->toPlainText(), u"the cat\n"_s.repeated(200)) << "undo knows nothing of it";
        close();
    });
}

TEST_F(ChangeStory, theDialogOfAToolShowsWhatItWouldMakeOfTheText) {
    run(u"one\ntwo"_s, [] {
        const auto shown = [] { return child<PlainTextBox>(*overlay(), "txtOverlay").Text(); };
        const auto indent = [](const std::function<void(QDialog &)> &act) {
            withModal<QDialog>(act);
            child<QAbstractButton>(*window(), "imgFavourites_0").click();
        };
        indent([&](QDialog &dialog) {
            EXPECT_EQ(overlay(), nullptr) << "not asked for";
            auto &tick = child<QAbstractButton>(dialog, "chkPreview");
            tick.click();
            EXPECT_TRUE(QTest::qWaitFor([] { return overlay() && overlay()->isVisible(); }));
            EXPECT_EQ(shown(), u"\tone\r\n\ttwo"_s);
            tick.click();
            EXPECT_TRUE(QTest::qWaitFor([] { return !overlay()->isVisible(); }));
            tick.click();
            dialog.reject();
        });
        EXPECT_FALSE(overlay()->isVisible());
        EXPECT_EQ(text()->toPlainText(), u"one\ntwo"_s);
        EXPECT_FALSE(text()->document()->isModified());
        indent([&](QDialog &dialog) {
            EXPECT_TRUE(QTest::qWaitFor([] { return overlay()->isVisible(); })) << "as chosen the last time";
            child<QAbstractButton>(dialog, "optTab_1").click();
            EXPECT_TRUE(QTest::qWaitFor([&] { return shown() == u"    one\r\n    two"_s; }))
                << shown().toStdString();
            dialog.accept();
        });
        EXPECT_FALSE(overlay()->isVisible());
        EXPECT_EQ(text()->toPlainText(), u"    one\n    two"_s);
        QTest::keyClick(text(), Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(text()->toPlainText(), u"one\ntwo"_s) << "one step of undo";
        close();
    });
}

class StillStyle : public QProxyStyle {
  public:
    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *more) const override {
        return hint == SH_Widget_Animation_Duration ? 0 : QProxyStyle::styleHint(hint, option, widget, more);
    }
};

TEST_F(ChangeStory, theTintFadesUnlessMotionIsNotWanted) {
    run(u"the cat"_s, [] {
        text()->setCursorWidth(0);
        const QImage before = picture();
        StillStyle still;
        for (QStyle *style : {static_cast<QStyle *>(nullptr), static_cast<QStyle *>(&still)}) {
            text()->setStyle(style);
            titleCase();
            const QImage tinted = picture();
            const auto isOver = [] {
                return static_cast<PlainTextBox *>(text())->tint(TintLayer::Changes).isEmpty();
            };
            bool faded = false;
            EXPECT_TRUE(QTest::qWaitFor([&] {
                faded = faded || (!isOver() && picture() != tinted);
                return isOver();
            }));
            EXPECT_EQ(faded, style == nullptr);
            QTest::keyClick(text(), Qt::Key_Z, Qt::ControlModifier);
            EXPECT_EQ(picture(), before);
        }
        text()->setStyle(nullptr);
        close();
    });
}

TEST_F(ChangeStory, thePanelOpensAtOnceWhereMotionIsNotWanted) {
    run(u"text"_s, [] {
        const auto waitsInBetween = [] {
            bool waited = false;
            QTimer event;
            event.callOnTimeout([&waited] { waited = true; });
            event.start(0);
            child<QAbstractButton>(*window(), "lblToolbox_1").click();
            return waited;
        };
        EXPECT_TRUE(waitsInBetween());
        StillStyle still;
        window()->setStyle(&still);
        EXPECT_FALSE(waitsInBetween());
        EXPECT_EQ(child<QAbstractButton>(*window(), "lblToolbox_2").accessibleName(), u"Clean & Replace"_s);
        window()->setStyle(nullptr);
        close();
    });
}

} // namespace
