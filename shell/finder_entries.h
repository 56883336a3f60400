// SPDX-License-Identifier: MIT
// What there is to find: the tools of the panel, the favourites that are two tools, the PowerButtons that
// have a name or steps, and the commands of the window. And how it is run.
#pragma once

#include "shell/tool_finder.h"

#include <QHash>

namespace tolvo {

class CPowerButtonCollection;
class Catalogue;
class SettingsStore;
class frmMain;

/// Other words and examples, from data/OtherWords.txt.
class OtherWords {
  public:
    struct Line {
        QString words; ///< separated by commas
        QString example;
    };

    /// Reads the file, one "Token;Words;Example" a line, with comments after "#" at a line's start. A file
    /// that isn't there is an empty one.
    [[nodiscard]] static OtherWords read(const QString &path);
    /// Those of an id; empty ones if the file doesn't know it.
    [[nodiscard]] Line of(const QString &id) const { return m_lines.value(id); }
    [[nodiscard]] QStringList ids() const { return m_lines.keys(); }

  private:
    QHash<QString, Line> m_lines;
};

/// Tools in the catalogue's order, then composites, PowerButtons and commands.
[[nodiscard]] QList<FinderEntry> finderEntries(const Catalogue &oTools, const CPowerButtonCollection &buttons,
                                               const OtherWords &words);

/// Runs what an id stands for, as a click on its control does: the token of a tool, a composite, "PB" and the
/// index of a PowerButton, or the name of a command. `right` stands for the right mouse button: a tool runs
/// with its last settings, a PowerButton is edited.
void runFound(frmMain &session, const QString &id, bool right);

// The order of use, which the store keeps

/// The id of a PowerButton of an index from 0.
[[nodiscard]] QString powerButtonId(int index);
/// The id of a favourite by its tag.
[[nodiscard]] QString favouriteId(const QString &tag);
/// Ids, the latest first.
[[nodiscard]] QStringList lastUsed(const SettingsStore &store);
/// The id becomes the latest.
void noteUse(SettingsStore &store, const QString &id);

} // namespace tolvo
