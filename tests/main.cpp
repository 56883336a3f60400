// SPDX-License-Identifier: MIT
// The start of every test program.
#include "tests/support/toolkit_warnings.h"

#ifdef QT_WIDGETS_LIB
#include <QApplication>
using Application = QApplication;
#else
#include <QCoreApplication>
using Application = QCoreApplication;
#endif

int main(int argc, char **argv) {
    testing::InitGoogleTest(&argc, argv);
    tolvo::test::failOnToolkitWarnings();
    const Application application(argc, argv);
#if defined(QT_WIDGETS_LIB) && defined(Q_OS_WIN)
    QApplication::setFont(
        QFont(QStringLiteral("DejaVu Sans"), 9)); // the offscreen platform knows no font of the system
#endif
    return RUN_ALL_TESTS();
}
