// SPDX-License-Identifier: MIT
// The sheet of all keys as rows, and its filter.
#pragma once

#include "shell/key_table.h"

#include <QList>
#include <QString>

namespace tolvo {

struct KeySheetRow {
    KeyGroup group;
    QString keys; ///< "Ctrl-Y"; several ways to the same command stand side by side: "Ctrl-Y, Ctrl-Shift-Z"
    QString does;

    bool operator==(const KeySheetRow &) const = default;
};

/// The commands of keyTable() and then `others`, by groups; keys that do the same share a row.
[[nodiscard]] QList<KeySheetRow> keySheet(const QList<KeySheetRow> &others = {});

/// The rows in which, for every word of `filter`, a word of keys, command or title of the group begins with
/// it (or is it, if it is a single character), in any case. "ctrl z" and "Ctrl+Z" find Ctrl-Z; an empty
/// filter finds all.
[[nodiscard]] QList<KeySheetRow> filtered(const QList<KeySheetRow> &sheet, const QString &filter);

} // namespace tolvo
