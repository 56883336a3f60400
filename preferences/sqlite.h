// SPDX-License-Identifier: MIT
// The little of SQLite that the settings store needs: a connection, a statement, one error type.
#pragma once

#include <QString>
#include <functional>
#include <optional>
#include <sqlite3.h>

namespace tolvo {

/// What SQLite refused, with its (extended) result code. It never leaves the settings store.
struct SqliteError {
    int code;
    QString description;

    [[nodiscard]] int primary() const { return code & 0xFF; }
    [[nodiscard]] bool isDamage() const { return primary() == SQLITE_CORRUPT || primary() == SQLITE_NOTADB; }
    [[nodiscard]] bool isBusy() const { return primary() == SQLITE_BUSY || primary() == SQLITE_LOCKED; }
};

/// One open database, closed with the object.
class SqliteConnection {
  public:
    /// Opens or makes the file; ":memory:" is a database in memory. Waits up to `busyMilliseconds` for
    /// others.
    SqliteConnection(const QString &path, int busyMilliseconds);
    ~SqliteConnection();
    SqliteConnection(const SqliteConnection &) = delete;
    SqliteConnection &operator=(const SqliteConnection &) = delete;

    /// Runs statements that give no rows.
    void execute(const char *sql);
    /// The number in the first column of the first row, 0 if there is none.
    [[nodiscard]] qint64 number(const char *sql);
    /// Adds an SQL function from text to text. If it gives nothing, the statement fails.
    void addFunction(const char *name, std::function<std::optional<QString>(const QString &)> function);

    [[nodiscard]] bool isReadOnly() const;
    [[nodiscard]] bool inTransaction() const;
    /// Leaves the log of the last changes beside the file when the connection is closed: a damaged file is
    /// not written any more.
    void leaveLogOnClose();

    [[nodiscard]] sqlite3 *handle() const { return m_handle; }
    [[noreturn]] void fail(int code) const;

  private:
    sqlite3 *m_handle = nullptr;
    std::function<std::optional<QString>(const QString &)> m_function;
};

/// A prepared statement. Parameters and columns count from 0. A text that UTF-8 can't carry (a lone
/// surrogate) is stored as the bytes of its UTF-16 units, every other as text: nothing is lost, and the file
/// can be read with any SQLite tool.
class SqliteStatement {
  public:
    SqliteStatement(SqliteConnection &connection, const char *sql);
    ~SqliteStatement();
    SqliteStatement(const SqliteStatement &) = delete;
    SqliteStatement &operator=(const SqliteStatement &) = delete;

    void bind(int index, QStringView text);
    void bind(int index, qint64 number);
    /// Takes over a column of another statement, whatever it holds.
    void bindColumn(int index, const SqliteStatement &other, int column);
    /// Steps to the next row; false after the last one.
    bool next();
    /// Runs a statement without rows to its end and makes it ready for the next use.
    void run();
    /// Ends the reading of rows: a statement in the middle of its rows holds a lock.
    void reset();

    [[nodiscard]] QString text(int column) const;
    [[nodiscard]] qint64 number(int column) const;

  private:
    SqliteConnection &m_connection;
    sqlite3_stmt *m_handle = nullptr;
};

/// Resets a statement at the end of a block, on every way out.
class StatementReset {
  public:
    explicit StatementReset(SqliteStatement &statement) : m_statement(statement) {}
    ~StatementReset() { m_statement.reset(); }
    StatementReset(const StatementReset &) = delete;
    StatementReset &operator=(const StatementReset &) = delete;

  private:
    SqliteStatement &m_statement;
};

} // namespace tolvo
