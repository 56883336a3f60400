// SPDX-License-Identifier: MIT
#include "shell/ui/manual_key.h"
#include "tests/shell/ui/all_windows.h"

#include <QDir>
#include <QMessageBox>

namespace tolvo {

class ManualKeyStory : public AllWindows {};

TEST_F(ManualKeyStory, everyDialogOpensAPageThatIsThere) {
    const QDir docs(qEnvironmentVariable("TOLVO_SOURCE") + QStringLiteral("/docs"));
    QMap<QString, QSet<QString>> windows; // of each page
    inEachWindow([&](QWidget &window, const std::string &name) {
        const QString page = manualPageOf(window.focusWidget() != nullptr ? window.focusWidget() : &window);
        windows[page] += QString::fromStdString(name).section(u',', 0, 0);
        EXPECT_TRUE(page.isEmpty() || docs.exists(page + QStringLiteral(".md"))) << name;
        const QMessageBox box(&window);
        EXPECT_EQ(manualPageOf(&box), page) << name;
    });
    EXPECT_EQ(windows.take({}),
              QSet<QString>({QStringLiteral("main window"), QStringLiteral("font"), QStringLiteral("tips"),
                             QStringLiteral("usage"), QStringLiteral("update")}));
    EXPECT_EQ(windows.size(), 7) << "pages that a dialog opens";
}

TEST_F(ManualKeyStory, theKeyOpensThePageAndLeavesTheMainWindowItsOwn) {
    run(QStringLiteral("text"), [&] {
        const QString manual = QStringLiteral("/manual/search.html");
        QTest::keyClick(text(), Qt::Key_F1);
        EXPECT_EQ(boxes.said(), QStringLiteral("Help is not implemented yet"));
        QTest::keyClick(text(), Qt::Key_H, Qt::ControlModifier);
        auto &search = child<QDialog>(*window(), "frmSearch");
        activate(search);
        QTest::keyClick(search.focusWidget(), Qt::Key_F1);
        EXPECT_TRUE(processes.opened.value(0).endsWith(manual) ||
                    boxes.said() == QStringLiteral("The manual is not installed"))
            << processes.opened.join(u' ').toStdString();
        search.close();
        QTest::keyClick(text(), Qt::Key_D, Qt::AltModifier);
    });
}

} // namespace tolvo
