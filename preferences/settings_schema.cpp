// SPDX-License-Identifier: MIT
#include "preferences/settings_schema.h"

#include "base/private_files.h"

#include <QDeadlineTimer>
#include <QThread>

namespace tolvo {

namespace {

// A section's path is folded and starts with the name of its tree, so that one look-up finds it; `name` is
// its last level as first written. Rows keep the order in which they were first written by their id.
constexpr const char *tables = R"sql(
    CREATE TABLE section (
        id INTEGER PRIMARY KEY,
        parent INTEGER NOT NULL,
        name TEXT NOT NULL,
        path TEXT NOT NULL UNIQUE
    );
    CREATE INDEX section_parent ON section (parent);
    CREATE TABLE value (
        id INTEGER PRIMARY KEY,
        section INTEGER NOT NULL,
        name TEXT NOT NULL,
        folded TEXT NOT NULL,
        text TEXT NOT NULL,
        UNIQUE (section, folded)
    );
    PRAGMA user_version = 1;
)sql";
static_assert(settingsSchemaVersion == 1, "the version in the statement above");

/// True if the tables are there; refuses what isn't ours to write. Runs inside a transaction: another run may
/// be making the tables at this moment.
bool checkVersion(SqliteConnection &connection) {
    const qint64 version = connection.number("PRAGMA user_version");
    if (version > settingsSchemaVersion)
        throw SchemaRefusal::Newer;
    const bool isEmpty = version == 0 && connection.number("SELECT count(*) FROM sqlite_master") == 0;
    const bool isOurs = version == settingsSchemaVersion &&
                        connection.number("SELECT count(*) FROM sqlite_master WHERE type = 'table' AND "
                                          "name IN ('section', 'value')") == 2;
    if (!isEmpty && !isOurs)
        throw SchemaRefusal::Foreign;
    return isOurs;
}

void prepare(SqliteConnection &connection) {
    connection.execute("BEGIN");
    const bool ready = checkVersion(connection);
    connection.execute("COMMIT");
    // A commit reaches the system before it returns and survives the death of the process. Only a power cut
    // can take the last commits with it, and never damages the file.
    connection.execute("PRAGMA synchronous = NORMAL");
    if (ready)
        return;
    connection.execute("PRAGMA journal_mode = WAL");
    connection.execute("BEGIN IMMEDIATE");
    if (!checkVersion(connection))
        connection.execute(tables);
    connection.execute("COMMIT");
}

} // namespace

std::unique_ptr<SqliteConnection> openSettingsDatabase(const QString &path, int busyMilliseconds) {
    // The change to the write-ahead log doesn't wait for other runs by itself.
    const QDeadlineTimer deadline(busyMilliseconds);
    // The log and its index get the rights of the file.
    if (path != QLatin1StringView(":memory:"))
        makePrivateFile(path);
    for (;;) {
        try {
            auto connection = std::make_unique<SqliteConnection>(path, busyMilliseconds);
            prepare(*connection);
            return connection;
        } catch (const SqliteError &error) {
            if (!error.isBusy() || deadline.hasExpired())
                throw;
            QThread::msleep(5);
        }
    }
}

} // namespace tolvo
