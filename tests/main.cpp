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
    return RUN_ALL_TESTS();
}
