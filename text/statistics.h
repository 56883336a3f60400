// SPDX-License-Identifier: MIT
// What "Statistics" measures: computed here, shown by who asked.
#pragma once

#include <QList>
#include <QString>

namespace tolvo {

/// One row of the statistics: its name, and the value for the full text and for the selection as shown.
struct StatisticsRow {
    QString name;
    QString fullText;
    QString selection;
    bool bold = false;
};

/// The rows from "Bytes" to "Avg Sentence Length", without heading and spacer.
struct TextStatistics {
    QList<StatisticsRow> rows;
    bool hasSelection = false; ///< without one the selection's column looks empty
};

} // namespace tolvo
