// SPDX-License-Identifier: MIT
#include "preferences/sqlite.h"

#include "platform/library_path.h"

#include <QByteArray>
#include <QStringDecoder>

namespace tolvo {

namespace {

QString textOfValue(int type, const void *bytes, int size) {
    if (type == SQLITE_BLOB) {
        return QString(reinterpret_cast<const QChar *>(bytes), size / static_cast<int>(sizeof(QChar)));
    }
    // A byte order mark at the front is the user's, not the encoding's.
    QStringDecoder decode(QStringDecoder::Utf8, QStringDecoder::Flag::ConvertInitialBom);
    return decode(QByteArrayView(static_cast<const char *>(bytes), size));
}

} // namespace

SqliteConnection::SqliteConnection(const QString &path, int busyMilliseconds) {
    constexpr int flags =
        SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_EXRESCODE;
    const QByteArray name = path == QLatin1StringView(":memory:") ? path.toUtf8() : libraryPath(path);
    const int code = sqlite3_open_v2(name.constData(), &m_handle, flags, nullptr);
    if (code != SQLITE_OK) {
        const SqliteError error{code, QString::fromUtf8(sqlite3_errstr(code))};
        sqlite3_close_v2(m_handle);
        throw error;
    }
    sqlite3_busy_timeout(m_handle, busyMilliseconds);
}

SqliteConnection::~SqliteConnection() {
    sqlite3_close_v2(m_handle);
}

void SqliteConnection::fail(int code) const {
    throw SqliteError{code, QString::fromUtf8(sqlite3_errmsg(m_handle))};
}

void SqliteConnection::execute(const char *sql) {
    const int code = sqlite3_exec(m_handle, sql, nullptr, nullptr, nullptr);
    if (code != SQLITE_OK)
        fail(code);
}

qint64 SqliteConnection::number(const char *sql) {
    SqliteStatement statement(*this, sql);
    return statement.next() ? statement.number(0) : 0;
}

void SqliteConnection::addFunction(const char *name,
                                   std::function<std::optional<QString>(const QString &)> function) {
    m_function = std::move(function);
    const auto call = [](sqlite3_context *context, int, sqlite3_value **arguments) {
        const auto *self = static_cast<SqliteConnection *>(sqlite3_user_data(context));
        sqlite3_value *const value = arguments[0];
        const int type = sqlite3_value_type(value);
        const void *bytes = type == SQLITE_BLOB ? sqlite3_value_blob(value) : sqlite3_value_text(value);
        const auto result = self->m_function(textOfValue(type, bytes, sqlite3_value_bytes(value)));
        if (!result) {
            sqlite3_result_error(context, "no result", -1);
            return;
        }
        const QByteArray utf8 = result->toUtf8();
        sqlite3_result_text(context, utf8.constData(), static_cast<int>(utf8.size()), SQLITE_TRANSIENT);
    };
    const int code =
        sqlite3_create_function_v2(m_handle, name, 1, SQLITE_UTF8, this, call, nullptr, nullptr, nullptr);
    if (code != SQLITE_OK)
        fail(code);
}

bool SqliteConnection::isReadOnly() const {
    return sqlite3_db_readonly(m_handle, "main") == 1;
}

bool SqliteConnection::inTransaction() const {
    return sqlite3_get_autocommit(m_handle) == 0;
}

void SqliteConnection::leaveLogOnClose() {
    sqlite3_db_config(m_handle, SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 1, nullptr);
}

SqliteStatement::SqliteStatement(SqliteConnection &connection, const char *sql) : m_connection(connection) {
    const int code =
        sqlite3_prepare_v3(connection.handle(), sql, -1, SQLITE_PREPARE_PERSISTENT, &m_handle, nullptr);
    if (code != SQLITE_OK)
        connection.fail(code);
}

SqliteStatement::~SqliteStatement() {
    sqlite3_finalize(m_handle);
}

void SqliteStatement::bind(int index, QStringView text) {
    int code = SQLITE_OK;
    if (text.isValidUtf16()) {
        const QByteArray utf8 = text.toUtf8();
        code = sqlite3_bind_text(m_handle, index + 1, utf8.constData(), static_cast<int>(utf8.size()),
                                 SQLITE_TRANSIENT);
    } else {
        code = sqlite3_bind_blob(m_handle, index + 1, text.data(),
                                 static_cast<int>(text.size() * qsizetype{sizeof(QChar)}), SQLITE_TRANSIENT);
    }
    if (code != SQLITE_OK)
        m_connection.fail(code);
}

void SqliteStatement::bind(int index, qint64 number) {
    const int code = sqlite3_bind_int64(m_handle, index + 1, number);
    if (code != SQLITE_OK)
        m_connection.fail(code);
}

void SqliteStatement::bindColumn(int index, const SqliteStatement &other, int column) {
    const int code = sqlite3_bind_value(m_handle, index + 1, sqlite3_column_value(other.m_handle, column));
    if (code != SQLITE_OK)
        m_connection.fail(code);
}

bool SqliteStatement::next() {
    const int code = sqlite3_step(m_handle);
    if (code == SQLITE_ROW)
        return true;
    if (code != SQLITE_DONE)
        m_connection.fail(code);
    return false;
}

void SqliteStatement::run() {
    const StatementReset atEnd(*this);
    while (next()) {
    }
}

void SqliteStatement::reset() {
    sqlite3_reset(m_handle);
    sqlite3_clear_bindings(m_handle);
}

QString SqliteStatement::text(int column) const {
    const int type = sqlite3_column_type(m_handle, column);
    const void *bytes =
        type == SQLITE_BLOB ? sqlite3_column_blob(m_handle, column) : sqlite3_column_text(m_handle, column);
    return textOfValue(type, bytes, sqlite3_column_bytes(m_handle, column));
}

qint64 SqliteStatement::number(int column) const {
    return sqlite3_column_int64(m_handle, column);
}

} // namespace tolvo
