// SPDX-License-Identifier: MIT
// The tables of the settings file and their version.
#pragma once

#include "preferences/sqlite.h"

#include <memory>

namespace tolvo {

/// The version of the tables that this program reads and writes.
inline constexpr int settingsSchemaVersion = 1;

/// Why a database can't serve as the settings file, though it is whole.
enum class SchemaRefusal { Newer, Foreign };

/// Opens or makes a settings database at `path` (":memory:" for one in memory): write-ahead log, tables made
/// where there are none. Throws SqliteError or SchemaRefusal; a refused file is left as it was.
[[nodiscard]] std::unique_ptr<SqliteConnection> openSettingsDatabase(const QString &path,
                                                                     int busyMilliseconds);

} // namespace tolvo
