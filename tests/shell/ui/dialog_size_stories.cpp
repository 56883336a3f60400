// SPDX-License-Identifier: MIT
// Dialogs come back with the size that the user gave them.
#include "shell/ui/window_memory.h"
#include "tests/shell/ui/MainWindowStory.h"

#include <QScreen>

using namespace tolvo;

namespace {

class DialogSizeStory : public MainWindowStory {
  protected:
    /// Opens the statistics, acts on them, and closes them.
    static void inStatistics(const std::function<void(QDialog &)> &act) {
        withModal<QDialog>([&act](QDialog &dialog) { act(dialog); });
        QTest::keyClick(text(), Qt::Key_P, Qt::ControlModifier);
        QTest::keyClicks(&child<QWidget>(*window(), "txtFindTool"), QStringLiteral("statistics"));
        QTest::keyClick(&child<QWidget>(*window(), "txtFindTool"), Qt::Key_Return);
    }
    static QDialog &searchWindow() {
        QTest::keyClick(text(), Qt::Key_F, Qt::ControlModifier);
        return child<QDialog>(*window(), "frmSearch");
    }
    static void leave() { QTest::keyClick(text(), Qt::Key_Q, Qt::AltModifier); }
    [[nodiscard]] QString sizes() const { return get(store, settingKeys.windows.sizes, presentScreen()); }
};

TEST_F(DialogSizeStory, dialogsKeepTheSizeOfTheUserAloneAndOnTheScreen) {
    QSize first;
    run(QStringLiteral("one two"), [&] {
        inStatistics([&first](QDialog &dialog) { first = dialog.size(); });
        EXPECT_EQ(sizes(), QString()) << "nobody has changed it";
        inStatistics([&first](QDialog &dialog) { dialog.resize(first + QSize(40, 30)); });
        inStatistics([&first](QDialog &dialog) { EXPECT_EQ(dialog.size(), first + QSize(40, 30)); });
        QDialog &search = searchWindow();
        const QSize fitted = search.size();
        search.resize(fitted + QSize(60, 0));
        click(search, "cmdMore");
        EXPECT_GE(search.width(), fitted.width() + 60) << "what the user added stays";
        click(search, "cmdMore");
        EXPECT_EQ(search.size(), fitted + QSize(60, 0));
        search.close();
        EXPECT_TRUE(
            sizes().contains(QStringLiteral("frmSearch %1x%2").arg(fitted.width() + 60).arg(fitted.height())))
            << sizes().toStdString();
        leave();
    });
    set(store, settingKeys.windows.sizes, QStringLiteral("frmStats 9000x5|frmSearch 9000x9000"),
        presentScreen());
    run(QStringLiteral("one two"), [&] {
        const QSize screen = window()->screen()->availableSize();
        inStatistics([&](QDialog &dialog) {
            EXPECT_LE(dialog.width(), screen.width());
            EXPECT_GE(dialog.height(), dialog.minimumSizeHint().height());
        });
        QDialog &search = searchWindow();
        EXPECT_LE(search.height(), screen.height());
        search.close();
        leave();
    });
}

} // namespace
