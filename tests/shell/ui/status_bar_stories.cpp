// SPDX-License-Identifier: MIT
// The status bar and the way to a line.
#include "shell/ui/GoToLine.h"
#include "shell/ui/status_bar.h"
#include "tests/ui/user.h"
#include "widgets/contrast.h"

#include <QLabel>
#include <QLayout>
#include <QToolButton>

using namespace Qt::StringLiterals;
using namespace tolvo;

namespace {

TEST(StatusBar, canBeReadInLightAndDark) {
    for (const auto &[window, text] : {std::pair(u"#efefef"_s, u"#000000"_s),
                                       {u"#ffffff"_s, u"#232629"_s},
                                       {u"#2d2d30"_s, u"#ebebeb"_s},
                                       {u"#000000"_s, u"#ffffff"_s}}) {
        QPalette palette;
        palette.setColor(QPalette::Window, window);
        palette.setColor(QPalette::WindowText, text);
        for (const Fill fill : {Fill::Roomy, Fill::Near, Fill::Full})
            EXPECT_GE(contrast(fillColor(fill, palette), QColor(window)), 4.5)
                << window.toStdString() << ' ' << static_cast<int>(fill);
    }
}

TEST(StatusBar, showsWhatThereIs) {
    StatusBar bar(new QWidget);
    activate(bar);
    const auto &selected = child<QLabel>(bar, "labSelected");
    const auto &length = child<QLabel>(bar, "labLength");
    const auto &hint = child<QLabel>(bar, "labHint");
    EXPECT_FALSE(selected.isVisible());
    EXPECT_FALSE(length.font().bold());
    bar.showFacts({.selected = 7, .line = 2, .column = 3, .length = 60000});
    EXPECT_TRUE(selected.isVisible());
    EXPECT_EQ(child<QToolButton>(bar, "cmdPlace").text(), u"Ln 2, Col 3"_s);
    EXPECT_TRUE(length.font().bold()) << "not by colour alone";
    bar.showFacts({});
    EXPECT_FALSE(selected.isVisible());
    EXPECT_FALSE(length.font().bold());

    bar.showStatus(u"0 characters removed"_s);
    bar.showHint(u"Nothing changed"_s);
    EXPECT_TRUE(hint.isVisible());
    bar.showStatus({});
    EXPECT_FALSE(hint.isVisible());
    bar.showLineEnds(false);
    EXPECT_EQ(child<QLabel>(bar, "labLineEnds").text(), u"CR LF"_s);
}

TEST(StatusBar, givesALongStatusTheRoomThatIsLeft) {
    StatusBar bar(new QWidget);
    const int smallest = bar.minimumSizeHint().width();
    auto &status = child<QLabel>(bar, "labStatus");
    bar.showStatus(u"word "_s.repeated(200));
    EXPECT_EQ(bar.minimumSizeHint().width(), smallest);
    bar.resize(600, bar.sizeHint().height());
    activate(bar);
    EXPECT_GE(child<QLabel>(bar, "labLength").width(), child<QLabel>(bar, "labLength").sizeHint().width());
    EXPECT_LT(status.geometry().right(), child<QToolButton>(bar, "cmdPlace").parentWidget()->x());
    EXPECT_EQ(status.accessibleName(), status.text());
    auto &hint = child<QLabel>(bar, "labHint");
    bar.showStatus(u"Removed 12 lines"_s);
    bar.showHint(u"A hint that has to give way"_s);
    for (const int width : {smallest + 150, 1200}) {
        bar.resize(width, bar.height());
        bar.layout()->activate();
        QCoreApplication::processEvents();
        const int wanted = status.sizeHint().width();
        EXPECT_TRUE(status.width() >= wanted || hint.width() <= 1) << width;
        EXPECT_EQ(hint.width() >= hint.sizeHint().width(), width == 1200) << width;
    }
    bar.showStatus({});
    EXPECT_EQ(status.accessibleName(), u"Status"_s);
}

TEST(GoToLine, staysOpenForALineThatThereIsNot) {
    const std::tuple<int, QString, QString> rows[] = {
        {3, u"2"_s, {}},
        {3, u"4"_s, u"The text has 3 lines."_s},
        {3, u"0"_s, u"The text has 3 lines."_s},
        {3, {}, u"The text has 3 lines."_s},
        {1, u"99999999999"_s, u"The text has one line."_s},
    };
    for (const auto &[lines, typed, refusal] : rows) {
        GoToLine dialog(lines, 1, nullptr);
        activate(dialog);
        auto &field = child<QLineEdit>(dialog, "txtLine");
        EXPECT_EQ(field.selectedText(), u"1"_s);
        QTest::keyClick(&field, Qt::Key_Backspace);
        QTest::keyClicks(&field, typed);
        QTest::keyClick(&field, Qt::Key_Return);
        EXPECT_EQ(dialog.isVisible(), !refusal.isEmpty()) << typed.toStdString();
        EXPECT_EQ(child<QLabel>(dialog, "labRefusal").text(), refusal);
        EXPECT_TRUE(!refusal.isEmpty() || dialog.line() == typed.toInt());
    }
}

} // namespace
