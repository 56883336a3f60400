// SPDX-License-Identifier: MIT
// What looks wrong with a fresh text, each with the tool that mends it.
#pragma once

#include "platform/background_job.h"

#include <QList>
#include <QString>

namespace tolvo {

/// A part of one line. Line and column count from 0, in UTF-16 code units; a length of 0 means an empty line.
struct LinePart {
    int line = 0;
    int column = 0;
    int length = 0;

    bool operator==(const LinePart &) const = default;
};

struct Trouble {
    QString token;          ///< of the tool; run with its default settings, it changes the text
    QString words;          ///< names the trouble: "mail quotes"
    QList<LinePart> places; ///< where it shows, in the order of the text
};

/// How many troubles are worth a look at one time.
inline constexpr qsizetype mostTroubles = 5;

/// The troubles of a text, the most useful to mend first, at most mostTroubles. A single odd place doesn't
/// count, and neither does the layout of a listing or a table. Safe in any thread; ends early when cancelled.
///   u"> one|> two" gives "mail quotes" with the tool edSTR
[[nodiscard]] QList<Trouble> textTroubles(const QString &text, const Cancellation &cancellation = {});

} // namespace tolvo
