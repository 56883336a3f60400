// SPDX-License-Identifier: MIT
#include "preferences/settings_store.h"

#include "base/conversions.h"
#include "base/failure.h"
#include "platform/user_folders.h"
#include "preferences/settings_database.h"

namespace tolvo {

SettingsStore::SettingsStore(const QString &path) : m_database(std::make_unique<Database>(path)) {
}

SettingsStore::~SettingsStore() = default;

QString SettingsStore::defaultPath() {
    QString named = qEnvironmentVariable("TOLVO_SETTINGS");
    if (!named.isEmpty())
        return named;
    return userSettingsFolder() + QStringLiteral("/settings.sqlite");
}

QString SettingsStore::takeTrouble() {
    return m_database->takeTrouble();
}

QString SettingsStore::GetSetting(const QString &application, const QString &section, const QString &key,
                                  const QString &defaultValue) const {
    const SectionAddress address(application, section);
    const QString folded = foldedKey(key);
    return m_database->read([&](SettingsRows &rows) { return rows.value(address, folded); })
        .value_or(defaultValue);
}

QString SettingsStore::GetSetting(const QString &application, const QString &section, const QString &key,
                                  int defaultValue) const {
    return GetSetting(application, section, key, QString::number(defaultValue));
}

QString SettingsStore::GetSetting(const QString &application, const QString &section, const QString &key,
                                  bool defaultValue) const {
    return GetSetting(application, section, key, flagWord(defaultValue));
}

void SettingsStore::SaveSetting(const QString &application, const QString &section, const QString &key,
                                const QString &value) {
    m_database->write([address = SectionAddress(application, section), key, value](SettingsRows &rows) {
        rows.save(address, key, value);
    });
}

void SettingsStore::DeleteSetting(const QString &application, const QString &section) {
    m_database->write([address = SectionAddress(application, section)](SettingsRows &rows) {
        rows.removeSection(address);
    });
}

void SettingsStore::DeleteValue(const QString &application, const QString &section, const QString &key) {
    m_database->write([address = SectionAddress(application, section), key](SettingsRows &rows) {
        rows.removeValue(address, foldedKey(key));
    });
}

std::optional<QList<SettingsStore::Pair>> SettingsStore::GetAllSettings(const QString &application,
                                                                        const QString &section) const {
    const SectionAddress address(application, section);
    QList<Pair> values = m_database->read([&](SettingsRows &rows) { return rows.values(address); });
    if (values.isEmpty())
        return std::nullopt;
    return values;
}

void SettingsStore::increment(const QString &application, const QString &section, const QString &key) {
    m_database->write([address = SectionAddress(application, section), key](SettingsRows &rows) {
        rows.increment(address, key);
    });
}

bool SettingsStore::sectionExists(const QString &application, const QString &section) const {
    const SectionAddress address(application, section);
    return m_database->read([&](SettingsRows &rows) { return rows.hasSection(address); });
}

QStringList SettingsStore::subsections(const QString &application, const QString &section) const {
    const SectionAddress address(application, section);
    return m_database->read([&](SettingsRows &rows) { return rows.subsections(address); });
}

qint64 SettingsStore::changesByOthers() const {
    return m_database->read(
        [](SettingsRows &rows) { return rows.connection().number("PRAGMA data_version"); });
}

QString SettingsStore::touchedFile() const {
    return m_database->touchedFile();
}

void SettingsStore::createSection(const QString &application, const QString &section) {
    m_database->write(
        [address = SectionAddress(application, section)](SettingsRows &rows) { rows.addSection(address); });
}

SettingsStore::Transaction::Transaction(SettingsStore &store) : m_store(store) {
    m_store.m_database->begin();
}

SettingsStore::Transaction::~Transaction() {
    if (m_done)
        return;
    try {
        m_store.m_database->rollBack();
    } catch (const Failure &) { // out of memory; what led here is on its way to the user
    }
}

void SettingsStore::Transaction::commit() {
    m_store.m_database->commit();
    m_done = true;
}

} // namespace tolvo
