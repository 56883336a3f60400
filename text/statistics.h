// SPDX-License-Identifier: MIT
// The result of "Statistics".
#pragma once

#include <QList>
#include <QString>

namespace tolvo {

/// One row: its name, and the values for the full text and for the selection, as they are shown.
struct StatisticsRow {
    QString name;
    QString fullText;
    QString selection;
    bool bold = false;
};

/// The rows from "Bytes" to "Avg Sentence Length", without heading and spacer.
struct TextStatistics {
    QList<StatisticsRow> rows;
    bool hasSelection = false; ///< false: nothing is selected, so the selection's column is not shown
};

} // namespace tolvo
