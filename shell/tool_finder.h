// SPDX-License-Identifier: MIT
// Finds tools, PowerButtons and commands by what somebody types. Knows neither catalogue nor window: see
// finder_entries.h for what there is to find.
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace tolvo {

/// Something that can be found and run.
struct FinderEntry {
    QString id = {};         ///< see runFound() in finder_entries.h
    QString name = {};       ///< plain text
    QString group = {};      ///< where it stands in the window
    QString does = {};       ///< what it does, in one sentence
    QString key = {};        ///< such as "Ctrl-F", empty if it has none
    QString keyNote = {};    ///< the key and what else there is to say of it
    QString rightClick = {}; ///< what a right click does instead, empty if that is the same
    QString otherWords = {}; ///< what people call it besides, separated by commas
    QString example = {};
};

struct FoundTool {
    qsizetype entry = 0; ///< index from 0
    QList<int> marked;   ///< the units of its name that were found, from 0, ascending
};

/// The entries that hold all words of `asked`, the best first. Whole words come before beginnings and
/// initials, these before runs of letters, a slip of the finger comes last; the name counts more than the
/// other words for the thing, these more than group and description. Of equals the one used last comes first
/// (`lastUsed` holds ids, the latest first), then the one that comes first in `entries`.
///     findTools(entries, "unwrap", {}) begins with "Join paragraphs"
[[nodiscard]] QList<FoundTool> findTools(const QList<FinderEntry> &entries, const QString &asked,
                                         const QStringList &lastUsed);

/// The latest `count` of the entries that were used at all.
[[nodiscard]] QList<FoundTool> lastUsedTools(const QList<FinderEntry> &entries, const QStringList &lastUsed,
                                             int count);

} // namespace tolvo
