// SPDX-License-Identifier: MIT
// The per-user tree of strings that outlives a run. One SQLite file holds both trees (settings and
// statistics); many runs and the companions use it at once.
#pragma once

#include <QList>
#include <QString>
#include <memory>
#include <optional>
#include <utility>

namespace tolvo {

/// A value is addressed by application (which tree), section (a path with backslashes as levels) and key.
/// Sections and keys compare without case; values and sections keep the order in which they were first
/// written. Every operation is atomic by itself and durable when it returns.
///
/// A store that can't be opened or written goes on in memory, with what can still be read of the file;
/// takeTrouble() then gives the reason, once. If others were only holding the file, or its disk was full,
/// what was written meanwhile is brought into the file at the end, if it can be written then. A damaged file
/// is set aside under another name and never overwritten; a new one takes over what can be read of it. A file
/// of a newer schema is left alone.
class SettingsStore {
  public:
    /// Opens or makes the file at `path`; ":memory:" is a store of its own in memory. Never throws: see
    /// takeTrouble().
    explicit SettingsStore(const QString &path);
    ~SettingsStore();
    SettingsStore(const SettingsStore &) = delete;
    SettingsStore &operator=(const SettingsStore &) = delete;

    /// $TOLVO_SETTINGS, else tolvo/settings.sqlite in the user's configuration folder.
    [[nodiscard]] static QString defaultPath();

    /// A sentence for the user about what went wrong with the file since the last call, empty if nothing did.
    /// Each trouble is given once.
    [[nodiscard]] QString takeTrouble();

    /// The stored string, or the default if the key or a level above it doesn't exist.
    [[nodiscard]] QString GetSetting(const QString &application, const QString &section, const QString &key,
                                     const QString &defaultValue = {}) const;
    /// A number and a flag as the default live for their fixed form alone: keys have typed ones (setting.h).
    [[nodiscard]] QString GetSetting(const QString &application, const QString &section, const QString &key,
                                     int defaultValue) const;
    [[nodiscard]] QString GetSetting(const QString &application, const QString &section, const QString &key,
                                     bool defaultValue) const;
    /// A bare literal would count as a flag.
    template <class Character>
    QString GetSetting(const QString &, const QString &, const QString &, const Character *) const = delete;

    /// Makes all missing levels and stores the string.
    void SaveSetting(const QString &application, const QString &section, const QString &key,
                     const QString &value);

    /// Removes the section with all its keys and subsections; harmless if there is none.
    void DeleteSetting(const QString &application, const QString &section);
    /// Removes one value.
    void DeleteValue(const QString &application, const QString &section, const QString &key);

    using Pair = std::pair<QString, QString>;
    /// Key and value of a section in order; no list at all when the section doesn't exist or holds no keys.
    [[nodiscard]] std::optional<QList<Pair>> GetAllSettings(const QString &application,
                                                            const QString &section) const;

    /// Adds 1 to a counter (default 0) in one statement: a count is never lost, whoever else counts. A stored
    /// text that is not a number is a Failure (13).
    void increment(const QString &application, const QString &section, const QString &key);

    /// Whether the section exists, and the names of its direct subsections in order. The empty section is the
    /// tree.
    [[nodiscard]] bool sectionExists(const QString &application, const QString &section) const;
    [[nodiscard]] QStringList subsections(const QString &application, const QString &section) const;

    /// A number that is another one as soon as somebody else (another run, a companion) has written to the
    /// file; what this store writes itself leaves it alone.
    [[nodiscard]] qint64 changesByOthers() const;
    /// The file that any write touches first; empty for a store in memory.
    [[nodiscard]] QString touchedFile() const;

    /// Makes an empty section, as an import may ask for.
    void createSection(const QString &application, const QString &section);

    /// All or nothing: rolled back unless commit() is called. Nests.
    class Transaction {
      public:
        explicit Transaction(SettingsStore &store);
        ~Transaction();
        Transaction(const Transaction &) = delete;
        Transaction &operator=(const Transaction &) = delete;
        void commit();

      private:
        SettingsStore &m_store;
        bool m_done = false;
    };

  private:
    class Database;
    std::unique_ptr<Database> m_database;
};

} // namespace tolvo
