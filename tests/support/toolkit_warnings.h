// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/print.h"

#include <QtGlobal>
#include <algorithm>
#include <cstdio>
#include <gtest/gtest.h>
#include <iterator>

namespace tolvo::test {

/// What the offscreen platform says of itself: it has no focus to ask for and moves no other program's
/// window.
inline constexpr QStringView wordsOfThePlatform[] = {u"This plugin does not support propagateSizeHints()",
                                                     u"This plugin does not support raise()",
                                                     u"This plugin does not support grabbing the keyboard"};

/// From here on a warning of the toolkit fails the test in which it comes.
inline void failOnToolkitWarnings() {
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext &, const QString &text) {
        std::fprintf(stderr, "%s\n", qUtf8Printable(text));
        const bool isOfThePlatform = std::find(std::begin(wordsOfThePlatform), std::end(wordsOfThePlatform),
                                               text) != std::end(wordsOfThePlatform);
        if (type != QtDebugMsg && type != QtInfoMsg && !isOfThePlatform)
            ADD_FAILURE() << "the toolkit warns: " << ::shown(text);
    });
}

} // namespace tolvo::test
