// SPDX-License-Identifier: MIT
// The main window offscreen: its size, its panel, its keys.
#include "platform/desktop/PlainTextBox.h"
#include "shell/ui/window_memory.h"
#include "shell/ui/window_size.h"
#include "tests/shell/ui/MainWindowStory.h"

#include <QAction>
#include <QMenu>
#include <QScreen>
#include <QSplitter>
#include <QTextDocumentFragment>
#include <QToolButton>

using namespace tolvo;

namespace {

TEST(WindowSize, isKeptAboveItsSmallest) {
    EXPECT_EQ(allowedOuterSize({8024, 5324}), QSize(8025, 5325));
    EXPECT_EQ(allowedOuterSize({9000, 5000}), QSize(9000, 5325));
    struct Row {
        QPoint pointer;
        std::optional<QSize> size;
    };
    // The handle stands at 7800, 4700 and is 240 high, which only the height takes in.
    const Row rows[] = {
        {{105, 25}, QSize(7905, 4965)}, {{104, 25}, {}}, {{105, 24}, {}}, {{400, 400}, QSize(8200, 5340)}};
    for (const Row &row : rows)
        EXPECT_EQ(draggedOuterSize({7800, 4700}, 240, row.pointer), row.size) << row.pointer.x();
}

TEST_F(MainWindowStory, fitsOnTheScreenAndOffersUndoInItsMenu) {
    const QString section = QStringLiteral("PowerButtons\\Button 1");
    store.SaveSetting(QStringLiteral("Tolvo"), section, QStringLiteral("Name"), QStringLiteral("<b>Loud"));
    store.SaveSetting(QStringLiteral("Tolvo"), section + QStringLiteral("\\Action 1"),
                      QStringLiteral("Token"), QStringLiteral("ccUPP"));
    run(QStringLiteral("abc"), [] {
        const QSize screen = window()->screen()->availableSize();
        EXPECT_LE(window()->width(), screen.width());
        EXPECT_LT(window()->height(), screen.height());
        const QSize smallest = window()->minimumSizeHint();
        EXPECT_LE(smallest.width(), 632) << "half of 1280, less the frame";
        EXPECT_LE(smallest.height(), 400);

        const auto menu = [](const char *item) {
            const auto shown = static_cast<PlainTextBox *>(text())->contextMenu();
            for (QAction *action : shown->actions()) {
                if (action->text().startsWith(QLatin1StringView(item)))
                    return action->trigger();
            }
            ADD_FAILURE() << item;
        };
        const auto &redo = child<QWidget>(*window(), "cmdRedo");
        QTest::keyClicks(text(), QStringLiteral("one two"));
        EXPECT_FALSE(redo.isEnabled());
        menu("&Undo");
        EXPECT_EQ(text()->toPlainText(), QStringLiteral("one abc"));
        EXPECT_TRUE(redo.isEnabled());
        QTest::keyClick(text(), Qt::Key_W, Qt::AltModifier); // both boxes share one history
        menu("&Redo");
        EXPECT_EQ(text()->toPlainText(), QStringLiteral("one twoabc"));

        auto &button = child<QWidget>(*window(), "imgPower_0");
        EXPECT_TRUE(Qt::mightBeRichText(button.toolTip()));
        EXPECT_EQ(QTextDocumentFragment::fromHtml(button.toolTip()).toPlainText(),
                  QStringLiteral("<b>Loud (Alt-F1)\nor Ctrl-1\n1. UPPER CASE"))
            << "as it was typed";
        button.setFocus();
        QTest::keyClick(&button, Qt::Key_Return);
        QTest::keyClick(text(), Qt::Key_D, Qt::AltModifier);
    });
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("ONE TWOABC"));
}

TEST_F(MainWindowStory, namesStandUnderTheIconsWithRoomOrByChoice) {
    struct Look {
        const char *choice;
        bool inNarrow;
        bool inWide;
    };
    for (const Look &look : {Look{nullptr, false, true}, Look{"Always names under the icons", true, true},
                             Look{nullptr, true, true}, Look{"Icons only", false, false},
                             Look{"Names under the icons where there is room", false, true}}) {
        run({}, [&] {
            const auto named = [](int width) {
                window()->resize(width, 600);
                QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
                return child<QToolButton>(*window(), "imgFavourites_0").text() == QStringLiteral("Indent");
            };
            QMenu menu;
            window()->findChild<PlainTextBox *>()->extendMenu(menu);
            for (QAction *action : menu.findChildren<QAction *>()) {
                if (action->text() == QLatin1StringView(look.choice))
                    action->trigger();
            }
            EXPECT_EQ(named(640), look.inNarrow) << look.choice;
            EXPECT_EQ(named(1900), look.inWide) << look.choice;
            QTest::keyClick(text(), Qt::Key_Q, Qt::AltModifier);
        });
    }
}

TEST_F(MainWindowStory, remembersItsPlaceAndThePanelWhereTheyStillFit) {
    const auto leave = [] { QTest::keyClick(text(), Qt::Key_Q, Qt::AltModifier); };
    const auto &place = settingKeys.windows.main;
    QSize first;
    int panel = 0;
    run({}, [&] {
        first = window()->size();
        window()->move(20, 30);
        window()->resize(720, 480);
        auto &splitter = child<QSplitter>(*window(), "panelSplitter");
        splitter.setSizes({180, splitter.width() - 180});
        panel = splitter.sizes().front();
        leave();
    });
    EXPECT_EQ(get(store, place, presentScreen()), QStringLiteral("20,30,720,480"));
    run({}, [&] {
        EXPECT_EQ(window()->size(), QSize(720, 480));
        EXPECT_EQ(window()->pos(), QPoint(20, 30));
        EXPECT_EQ(child<QSplitter>(*window(), "panelSplitter").sizes().front(), panel);
        leave();
    });
    for (const bool wrapped : {false, true}) {
        set(store, settingKeys.preferences.wordWrap, wrapped);
        set(store, place, QStringLiteral("20,30,640,400"), presentScreen());
        run({}, [&] {
            EXPECT_EQ(window()->size(), QSize(640, 400)) << "no larger than it has to be";
            leave();
        });
    }
    set(store, settingKeys.preferences.wordWrap, false);
    for (const char *gone : {"5000,30,720,480", "20,30,9000,480", "nonsense"}) {
        set(store, place, QLatin1StringView(gone), presentScreen());
        run({}, [&] {
            EXPECT_EQ(window()->size(), first) << gone;
            leave();
        });
    }
}

} // namespace
