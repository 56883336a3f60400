// SPDX-License-Identifier: MIT
// The rows of one settings database: what the store does, as statements. Any operation may throw SqliteError.
#pragma once

#include "preferences/sqlite.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <array>
#include <memory>
#include <optional>
#include <utility>

namespace tolvo {

/// The address of a section: its name as written and the folded path that it is found by.
struct SectionAddress {
    SectionAddress(QStringView application, QStringView section);

    QStringList levels; ///< the tree first
    QString path;
};

/// The form in which keys and sections are compared: simple case folding. A key of a single character beyond
/// ASCII stays as it is: the keys of long lists run through the letters of Latin-1, where folding would make
/// two positions one.
[[nodiscard]] QString foldedKey(QStringView key);

class SettingsRows {
  public:
    SettingsRows(const QString &path, int busyMilliseconds);

    /// Nothing if there is no such key.
    [[nodiscard]] std::optional<QString> value(const SectionAddress &section, const QString &foldedKey);
    /// Keys and texts, and the names of sections, in the order in which they were first written.
    [[nodiscard]] QList<std::pair<QString, QString>> values(const SectionAddress &section);
    [[nodiscard]] QStringList subsections(const SectionAddress &section);
    [[nodiscard]] bool hasSection(const SectionAddress &section);

    /// Makes the section if it isn't there.
    void save(const SectionAddress &section, const QString &key, const QString &text);
    /// Adds 1. Throws a Failure for a stored text that is not a number.
    void increment(const SectionAddress &section, const QString &key);
    void addSection(const SectionAddress &section);
    /// With all that lies below it.
    void removeSection(const SectionAddress &section);
    void removeValue(const SectionAddress &section, const QString &foldedKey);

    /// Takes over all rows of the other database that can still be read. False if some could not.
    bool copyFrom(SettingsRows &other);

    [[nodiscard]] SqliteConnection &connection() { return *m_connection; }

  private:
    enum class Query {
        Get,
        List,
        Children,
        Find,
        Save,
        Increment,
        AddSection,
        DropValues,
        DropSections,
        Drop
    };
    static constexpr std::size_t queryCount = static_cast<std::size_t>(Query::Drop) + 1;
    SqliteStatement &statement(Query query);
    /// The number of the section, made with all its levels where missing.
    qint64 makeSection(const SectionAddress &section);
    [[nodiscard]] std::optional<qint64> find(const QString &path);
    void write(Query query, const SectionAddress &section, const QString &key, const QString &text);

    std::unique_ptr<SqliteConnection> m_connection;
    std::array<std::unique_ptr<SqliteStatement>, queryCount> m_statements;
    std::optional<QString> m_noNumber; ///< the text that could not be counted up
};

} // namespace tolvo
