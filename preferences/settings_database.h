// SPDX-License-Identifier: MIT
// Where the rows of a settings store live: in the file, or in memory once the file has failed.
#pragma once

#include "preferences/settings_rows.h"
#include "preferences/settings_store.h"

#include <functional>
#include <list>

namespace tolvo {

class SettingsStore::Database {
  public:
    explicit Database(const QString &path);
    ~Database();
    Database(const Database &) = delete;
    Database &operator=(const Database &) = delete;

    /// Runs `operation` on the rows; if the file fails, on the rows that take its place.
    template <class Operation>
    auto read(Operation &&operation) {
        try {
            return operation(*m_rows);
        } catch (const SqliteError &error) {
            recover(error);
        }
        return lastTry([&] { return operation(*m_rows); });
    }

    using Change = std::function<void(SettingsRows &)>;
    /// The same for a change, which is kept until it is safe.
    void write(const Change &change);

    void begin();
    void commit();
    void rollBack();

    [[nodiscard]] QString takeTrouble();
    /// The write-ahead log; empty while the rows live in memory.
    [[nodiscard]] QString touchedFile() const;

  private:
    template <class Operation>
    static auto lastTry(Operation &&operation) {
        try {
            return operation();
        } catch (const SqliteError &error) {
            failFor(error);
        }
    }
    [[noreturn]] static void failFor(const SqliteError &error);

    void open();
    void recover(const SqliteError &error);
    void goOnInMemory(const QString &why, bool returnLater);
    void setAside();
    void salvage(const QString &file);
    void repeatOpenTransactions();
    void bringBackToFile();
    void tell(const QString &trouble);

    QString m_path;
    std::unique_ptr<SettingsRows> m_rows;
    bool m_inFile = false;
    bool m_returnLater = false;
    /// Changes that are not safe in the file: those of the open transaction, and those made in memory that
    /// are to return to the file.
    QList<Change> m_unsafe;
    QList<qsizetype> m_marks; ///< for each open transaction, the number of unsafe changes at its start
    QStringList m_troubles;
};

} // namespace tolvo
