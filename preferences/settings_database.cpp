// SPDX-License-Identifier: MIT
#include "preferences/settings_database.h"

#include "base/application.h"
#include "base/failure.h"
#include "base/private_files.h"
#include "preferences/settings_schema.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

namespace tolvo {

namespace {

constexpr int patience = 3000;      ///< ms to wait for other runs; each of them holds the file for 1 ms
constexpr int patienceAtEnd = 1000; ///< ms to wait when changes are brought back at the end
const QString inMemory = QStringLiteral(":memory:");
const QString logSuffix = QStringLiteral("-wal");

/// What follows the reason in the message to the user.
QString sessionOnly() {
    return QStringLiteral("\r\nWhat you change in this session may be lost at its end.");
}

QString nativePath(const QString &path) {
    return QDir::toNativeSeparators(path);
}

/// A name beside `path` that no file has yet.
QString unusedNameBeside(const QString &path) {
    for (int i = 1;; ++i) {
        QString name = path + QStringLiteral(".damaged-%1").arg(i);
        if (!QFileInfo::exists(name) && !QFileInfo::exists(name + logSuffix))
            return name;
    }
}

bool isWhole(const QString &path) {
    try {
        SettingsRows rows(path, patience);
        SqliteStatement check(rows.connection(), "PRAGMA quick_check");
        return check.next() && check.text(0) == QLatin1StringView("ok");
    } catch (const SqliteError &) {
        return false;
    } catch (const SchemaRefusal &) {
        return false;
    }
}

} // namespace

SettingsStore::Database::Database(const QString &path) : m_path(path) {
    open();
}

SettingsStore::Database::~Database() {
    if (m_returnLater && !m_unsafe.isEmpty() && m_marks.isEmpty())
        bringBackToFile();
}

void SettingsStore::Database::failFor(const SqliteError &error) {
    throw Failure(failureNumber::fileAccess,
                  QStringLiteral("The settings can't be kept in memory: ") + error.description);
}

void SettingsStore::Database::open() {
    if (m_path == inMemory) {
        m_rows = std::make_unique<SettingsRows>(inMemory, patience);
        return;
    }
    const QFileInfo info(m_path);
    if (info.exists() && !info.isFile()) {
        goOnInMemory(QStringLiteral("%1 is not a file.").arg(nativePath(m_path)), false);
        return;
    }
    makePrivateFolder(info.absolutePath());
    try {
        m_rows = std::make_unique<SettingsRows>(m_path, patience);
        m_inFile = true;
        if (m_rows->connection().isReadOnly()) {
            goOnInMemory(QStringLiteral("The settings file %1 can't be written: it is write-protected.")
                             .arg(nativePath(m_path)),
                         false);
        }
    } catch (const SqliteError &error) {
        recover(error);
    } catch (SchemaRefusal refusal) {
        goOnInMemory(
            refusal == SchemaRefusal::Newer
                ? QStringLiteral("The settings file %1 was written by a newer version of %2. It is left "
                                 "as it is, and this session begins with default settings.")
                      .arg(nativePath(m_path), applicationTitle())
                : QStringLiteral("%1 is a file of another program. It is left as it is, and this "
                                 "session begins with default settings.")
                      .arg(nativePath(m_path)),
            false);
    }
}

void SettingsStore::Database::write(const Change &change) {
    if (!m_inFile && !m_returnLater && m_marks.isEmpty()) {
        lastTry([&] { change(*m_rows); });
        return;
    }
    if (m_inFile && m_marks.isEmpty()) {
        try {
            change(*m_rows);
            return;
        } catch (const SqliteError &error) {
            recover(error);
        }
        lastTry([&] { change(*m_rows); });
    } else {
        read(change);
    }
    if (!m_marks.isEmpty() || m_returnLater)
        m_unsafe += change;
}

void SettingsStore::Database::begin() {
    const QByteArray name = "SAVEPOINT level" + QByteArray::number(m_marks.size());
    read([&](SettingsRows &rows) {
        rows.connection().execute(m_marks.isEmpty() ? "BEGIN IMMEDIATE" : name.constData());
    });
    m_marks += m_unsafe.size();
}

void SettingsStore::Database::commit() {
    const QByteArray name = "RELEASE level" + QByteArray::number(m_marks.size() - 1);
    read([&](SettingsRows &rows) {
        rows.connection().execute(m_marks.size() == 1 ? "COMMIT" : name.constData());
    });
    m_marks.removeLast();
    if (m_marks.isEmpty() && !m_returnLater)
        m_unsafe.clear();
}

void SettingsStore::Database::rollBack() {
    const QByteArray name = "level" + QByteArray::number(m_marks.size() - 1);
    const QByteArray undo = "ROLLBACK TO " + name + "; RELEASE " + name;
    m_unsafe.resize(m_marks.takeLast());
    try {
        m_rows->connection().execute(m_marks.isEmpty() ? "ROLLBACK" : undo.constData());
    } catch (const SqliteError &error) {
        recover(error);
    }
}

/// Brings the open transactions to where they were, on new rows.
void SettingsStore::Database::repeatOpenTransactions() {
    lastTry([&] {
        const qsizetype first = m_marks.isEmpty() ? m_unsafe.size() : m_marks.front();
        for (qsizetype change = first, level = 0; change <= m_unsafe.size(); ++change) {
            for (; level < m_marks.size() && m_marks.at(level) == change; ++level) {
                const QByteArray name = "SAVEPOINT level" + QByteArray::number(level);
                m_rows->connection().execute(level == 0 ? "BEGIN IMMEDIATE" : name.constData());
            }
            if (change < m_unsafe.size())
                m_unsafe.at(change)(*m_rows);
        }
    });
}

void SettingsStore::Database::recover(const SqliteError &error) {
    if (m_path == inMemory || (m_rows && !m_inFile))
        failFor(error);
    if (m_rows && m_rows->connection().inTransaction()) {
        try { // what the transaction has changed is done again elsewhere
            m_rows->connection().execute("ROLLBACK");
        } catch (const SqliteError &) { // a full disk: rolled back already
        }
    }
    if (error.isDamage()) {
        setAside();
    } else {
        const bool passing =
            error.isBusy() || error.primary() == SQLITE_FULL || error.primary() == SQLITE_IOERR;
        const QString why =
            error.isBusy() ? QStringLiteral("another program is holding it") : error.description;
        goOnInMemory(QStringLiteral("The settings file %1 can't be used: %2.").arg(nativePath(m_path), why),
                     passing);
    }
    repeatOpenTransactions();
}

void SettingsStore::Database::goOnInMemory(const QString &why, bool returnLater) {
    const std::unique_ptr<SettingsRows> before = std::move(m_rows);
    m_inFile = false;
    m_returnLater = returnLater;
    m_rows = std::make_unique<SettingsRows>(inMemory, patience);
    tell(why + sessionOnly());
    if (before)
        m_rows->copyFrom(*before);
    else
        salvage(m_path);
}

/// Takes over what can be read of a file that must not be touched, by way of a copy.
void SettingsStore::Database::salvage(const QString &file) {
    const QTemporaryDir folder;
    const QString copy = folder.filePath(QStringLiteral("settings.sqlite"));
    if (!QFileInfo(file).isFile() || !QFile::copy(file, copy))
        return;
    QFile::copy(file + logSuffix, copy + logSuffix);
    for (const QString &name : {copy, copy + logSuffix})
        QFile::setPermissions(name, QFile::ReadOwner | QFile::WriteOwner);
    try {
        SettingsRows rows(copy, patience);
        rows.connection().leaveLogOnClose();
        m_rows->copyFrom(rows);
    } catch (const SqliteError &) { // nothing in it can be read
    } catch (const SchemaRefusal &) {
    }
}

void SettingsStore::Database::setAside() {
    if (m_rows)
        m_rows->connection().leaveLogOnClose();
    m_rows.reset();
    m_inFile = false;
    if (isWhole(m_path)) { // another run has been here before us
        m_rows = std::make_unique<SettingsRows>(m_path, patience);
        m_inFile = true;
        return;
    }
    const QString aside = unusedNameBeside(m_path);
    if (!QFile::rename(m_path, aside)) {
        goOnInMemory(QStringLiteral("The settings file %1 is damaged.").arg(nativePath(m_path)), false);
        return;
    }
    QFile::rename(m_path + logSuffix, aside + logSuffix);
    QFile::remove(m_path + QStringLiteral("-shm"));
    try {
        m_rows = std::make_unique<SettingsRows>(m_path, patience);
        m_inFile = true;
        salvage(aside);
        tell(QStringLiteral(
                 "The settings file was damaged. It has been set aside as %1. What could be read of "
                 "it has been kept; anything else begins with default settings.")
                 .arg(nativePath(aside)));
    } catch (const SqliteError &error) {
        m_rows.reset();
        goOnInMemory(
            QStringLiteral("The settings file was damaged and has been set aside as %1. No new one can "
                           "be made: %2.")
                .arg(nativePath(aside), error.description),
            false);
        salvage(aside);
    }
}

/// The end of a session that had to leave its file: one more try, all or nothing.
void SettingsStore::Database::bringBackToFile() {
    try {
        SettingsRows rows(m_path, patienceAtEnd);
        rows.connection().execute("BEGIN IMMEDIATE");
        for (const Change &change : std::as_const(m_unsafe))
            change(rows);
        rows.connection().execute("COMMIT");
    } catch (const SqliteError &) { // the user has had the message
    } catch (const SchemaRefusal &) {
    } catch (const Failure &) {
    }
}

void SettingsStore::Database::tell(const QString &trouble) {
    m_troubles += trouble;
}

QString SettingsStore::Database::touchedFile() const {
    return m_inFile ? m_path + logSuffix : QString();
}

QString SettingsStore::Database::takeTrouble() {
    return std::exchange(m_troubles, {}).join(QStringLiteral("\r\n\r\n"));
}

} // namespace tolvo
