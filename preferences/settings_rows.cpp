// SPDX-License-Identifier: MIT
#include "preferences/settings_rows.h"

#include "base/conversions.h"
#include "base/failure.h"
#include "base/numbers.h"
#include "preferences/settings_schema.h"

namespace tolvo {

namespace {

QString folded(QStringView text) {
    QString result;
    result.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar unit = text.at(i);
        if (unit.isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate()) {
            const char32_t character = QChar::toCaseFolded(QChar::surrogateToUcs4(unit, text.at(++i)));
            result += QChar::fromUcs4(character);
        } else {
            result += unit.toCaseFolded();
        }
    }
    return result;
}

constexpr std::array queries = {
    "SELECT text FROM value WHERE section = (SELECT id FROM section WHERE path = ?1) AND folded = ?2",
    "SELECT name, text FROM value WHERE section = (SELECT id FROM section WHERE path = ?1) ORDER BY id",
    "SELECT name FROM section WHERE parent = (SELECT id FROM section WHERE path = ?1) ORDER BY id",
    "SELECT id FROM section WHERE path = ?1",
    "INSERT INTO value (section, name, folded, text) SELECT id, ?2, ?3, ?4 FROM section WHERE path = ?1 "
    "ON CONFLICT (section, folded) DO UPDATE SET text = excluded.text",
    "INSERT INTO value (section, name, folded, text) SELECT id, ?2, ?3, ?4 FROM section WHERE path = ?1 "
    "ON CONFLICT (section, folded) DO UPDATE SET text = increased(value.text)",
    "INSERT INTO section (parent, name, path) VALUES (?1, ?2, ?3)",
    "WITH RECURSIVE doomed (id) AS (SELECT id FROM section WHERE path = ?1 UNION ALL "
    "SELECT section.id FROM section JOIN doomed ON section.parent = doomed.id) "
    "DELETE FROM value WHERE section IN doomed",
    "WITH RECURSIVE doomed (id) AS (SELECT id FROM section WHERE path = ?1 UNION ALL "
    "SELECT section.id FROM section JOIN doomed ON section.parent = doomed.id) "
    "DELETE FROM section WHERE id IN doomed",
    "DELETE FROM value WHERE section = (SELECT id FROM section WHERE path = ?1) AND folded = ?2",
};

/// Several statements that count as one, inside whatever transaction is open.
class Step {
  public:
    explicit Step(SqliteConnection &connection)
        : m_connection(connection), m_outermost(!connection.inTransaction()) {
        m_connection.execute(m_outermost ? "BEGIN IMMEDIATE" : "SAVEPOINT step");
    }
    ~Step() {
        if (m_done || !m_connection.inTransaction())
            return;
        try {
            m_connection.execute(m_outermost ? "ROLLBACK" : "ROLLBACK TO step; RELEASE step");
        } catch (const SqliteError &) { // the failure that led here says more
        }
    }
    Step(const Step &) = delete;
    Step &operator=(const Step &) = delete;
    void commit() {
        m_connection.execute(m_outermost ? "COMMIT" : "RELEASE step");
        m_done = true;
    }

  private:
    SqliteConnection &m_connection;
    bool m_outermost;
    bool m_done = false;
};

} // namespace

SectionAddress::SectionAddress(QStringView application, QStringView section)
    : levels(application.toString()), path(folded(application)) {
    for (const QStringView level : section.split(u'\\', Qt::SkipEmptyParts)) {
        levels += level.toString();
        path += u'\\' + folded(level);
    }
}

QString foldedKey(QStringView key) {
    return key.size() == 1 && key.front().unicode() > 0x7F ? key.toString() : folded(key);
}

SettingsRows::SettingsRows(const QString &path, int busyMilliseconds)
    : m_connection(openSettingsDatabase(path, busyMilliseconds)) {
    m_connection->addFunction("increased", [this](const QString &text) -> std::optional<QString> {
        try {
            return numberText(toNumber(text) + 1.0);
        } catch (const Failure &) {
            m_noNumber = text;
            return std::nullopt;
        }
    });
}

SqliteStatement &SettingsRows::statement(Query query) {
    static_assert(queries.size() == queryCount);
    const auto index = static_cast<std::size_t>(query);
    auto &place = m_statements[index];
    if (!place)
        place = std::make_unique<SqliteStatement>(*m_connection, queries[index]);
    return *place;
}

std::optional<QString> SettingsRows::value(const SectionAddress &section, const QString &key) {
    SqliteStatement &get = statement(Query::Get);
    const StatementReset atEnd(get);
    get.bind(0, section.path);
    get.bind(1, key);
    if (!get.next())
        return std::nullopt;
    return get.text(0);
}

QList<std::pair<QString, QString>> SettingsRows::values(const SectionAddress &section) {
    SqliteStatement &list = statement(Query::List);
    const StatementReset atEnd(list);
    list.bind(0, section.path);
    QList<std::pair<QString, QString>> result;
    while (list.next())
        result.emplaceBack(list.text(0), list.text(1));
    return result;
}

QStringList SettingsRows::subsections(const SectionAddress &section) {
    SqliteStatement &children = statement(Query::Children);
    const StatementReset atEnd(children);
    children.bind(0, section.path);
    QStringList result;
    while (children.next())
        result += children.text(0);
    return result;
}

std::optional<qint64> SettingsRows::find(const QString &path) {
    SqliteStatement &query = statement(Query::Find);
    const StatementReset atEnd(query);
    query.bind(0, path);
    if (!query.next())
        return std::nullopt;
    return query.number(0);
}

bool SettingsRows::hasSection(const SectionAddress &section) {
    return find(section.path).has_value();
}

qint64 SettingsRows::makeSection(const SectionAddress &section) {
    QString path;
    qint64 parent = 0;
    for (const QString &level : section.levels) {
        path += path.isEmpty() ? folded(level) : u'\\' + folded(level);
        if (const auto known = find(path)) {
            parent = *known;
            continue;
        }
        SqliteStatement &add = statement(Query::AddSection);
        add.bind(0, parent);
        add.bind(1, level);
        add.bind(2, path);
        add.run();
        parent = sqlite3_last_insert_rowid(m_connection->handle());
    }
    return parent;
}

void SettingsRows::addSection(const SectionAddress &section) {
    Step step(*m_connection);
    makeSection(section);
    step.commit();
}

void SettingsRows::write(Query query, const SectionAddress &section, const QString &key,
                         const QString &text) {
    const auto run = [&] {
        SqliteStatement &save = statement(query);
        save.bind(0, section.path);
        save.bind(1, key);
        save.bind(2, foldedKey(key));
        save.bind(3, text);
        save.run();
        return sqlite3_changes(m_connection->handle()) > 0;
    };
    if (run())
        return;
    Step step(*m_connection); // the section isn't there yet
    makeSection(section);
    run();
    step.commit();
}

void SettingsRows::save(const SectionAddress &section, const QString &key, const QString &text) {
    write(Query::Save, section, key, text);
}

void SettingsRows::increment(const SectionAddress &section, const QString &key) {
    m_noNumber.reset();
    try {
        write(Query::Increment, section, key, QStringLiteral("1"));
    } catch (const SqliteError &) {
        if (m_noNumber)
            failTypeMismatch(*m_noNumber);
        throw;
    }
}

void SettingsRows::removeSection(const SectionAddress &section) {
    if (!hasSection(section))
        return;
    Step step(*m_connection);
    for (const Query query : {Query::DropValues, Query::DropSections}) {
        SqliteStatement &drop = statement(query);
        drop.bind(0, section.path);
        drop.run();
    }
    step.commit();
}

void SettingsRows::removeValue(const SectionAddress &section, const QString &key) {
    SqliteStatement &drop = statement(Query::Drop);
    drop.bind(0, section.path);
    drop.bind(1, key);
    drop.run();
}

bool SettingsRows::copyFrom(SettingsRows &other) {
    bool whole = true;
    const auto copy = [&](const char *from, const char *into, int columns) {
        try {
            SqliteStatement read(other.connection(), from);
            SqliteStatement add(connection(), into);
            while (read.next()) {
                for (int column = 0; column < columns; ++column)
                    add.bindColumn(column, read, column);
                add.run();
            }
        } catch (const SqliteError &) {
            whole = false;
        }
    };
    constexpr const char *addSection = "INSERT OR IGNORE INTO section (id, parent, name, path) "
                                       "VALUES (?1, ?2, ?3, ?4)";
    constexpr const char *addValue = "INSERT OR IGNORE INTO value (id, section, name, folded, text) "
                                     "SELECT ?1, ?2, ?3, ?4, ?5 WHERE EXISTS "
                                     "(SELECT 1 FROM section WHERE id = ?2)";
    connection().execute("BEGIN IMMEDIATE");
    copy("SELECT id, parent, name, path FROM section ORDER BY id", addSection, 4);
    copy("SELECT id, section, name, folded, text FROM value ORDER BY id", addValue, 5);
    if (!whole) { // what lies past a damaged page is reached from the other end
        copy("SELECT id, parent, name, path FROM section ORDER BY id DESC", addSection, 4);
        copy("SELECT id, section, name, folded, text FROM value ORDER BY id DESC", addValue, 5);
    }
    connection().execute("COMMIT");
    return whole;
}

} // namespace tolvo
