// SPDX-License-Identifier: MIT
// Files in the registry editor's text format: what they hold, read and written. What of it concerns the
// settings store is settings_exchange.h.
#pragma once

#include "preferences/CRegistryTool.h"

#include <QByteArray>
#include <QList>
#include <QString>

namespace tolvo {

/// One line "name"="text" of a key, or "name"=-. The empty name is the key's default value, written "@".
struct RegValue {
    RegistryEntry entry;
    bool deleted = false;
    int line = 0; ///< where it stands in the file, from 1
    bool operator==(const RegValue &other) const { return entry == other.entry && deleted == other.deleted; }
};

/// One heading [root\path], or [-root\path], with its values.
struct RegKey {
    QString root;
    QString path; ///< without a backslash at its ends
    bool deleted = false;
    QList<RegValue> values = {};
    int line = 0;
    bool operator==(const RegKey &other) const {
        return root == other.root && path == other.path && deleted == other.deleted && values == other.values;
    }
};

/// Reads a file of version 5.00 (UTF-16 with a byte order mark, or UTF-8) or of version 4 (UTF-8, or
/// Windows-1252 where it isn't that). Only texts are taken: a value of another type, and anything else that
/// isn't understood, is a Failure whose description names the line.
[[nodiscard]] QList<RegKey> readRegFile(const QByteArray &file);

/// Writes version 5.00: UTF-16 LE with a byte order mark, CR LF. Texts with line ends or control characters
/// are written as hex(1). Fails for a name that the format can't carry (one with a line end or NUL).
[[nodiscard]] QByteArray writeRegFile(const QList<RegKey> &keys);

} // namespace tolvo
