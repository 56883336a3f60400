// SPDX-License-Identifier: MIT
#include "preferences/settings_exchange.h"

#include "base/application.h"
#include "base/failure.h"
#include "base/numbers.h"
#include "preferences/reg_file.h"
#include "preferences/reg_text.h"
#include "preferences/settings_keys.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace tolvo {

namespace {

// What the registry itself allows.
constexpr qsizetype deepestLevel = 512;
constexpr qsizetype longestKeyName = 255;
constexpr qsizetype longestValueName = 16'383;
constexpr qint64 largestFile = 256LL * 1024 * 1024;

[[noreturn]] void failForFile(const QString &fileName, const QString &what) {
    throw Failure(failureNumber::fileAccess,
                  QStringLiteral("%1: %2").arg(QDir::toNativeSeparators(fileName), what));
}

bool isOurTree(const QString &name) {
    return name.compare(applicationTitle(), Qt::CaseInsensitive) == 0 ||
           name.compare(statisticsTree(), Qt::CaseInsensitive) == 0;
}

void checkLengths(const RegKey &key) {
    const QList<QStringView> levels = QStringView(key.path).split(u'\\');
    if (levels.size() > deepestLevel)
        failInLine(key.line,
                   QStringLiteral("the key has more than %1 levels").arg(groupedNumber(deepestLevel)));
    for (const QStringView level : levels) {
        if (level.isEmpty() || level.size() > longestKeyName) {
            failInLine(key.line,
                       QStringLiteral("the key has an empty name in it, or one of more than %1 characters")
                           .arg(groupedNumber(longestKeyName)));
        }
    }
    for (const RegValue &value : key.values) {
        if (value.entry.name.size() > longestValueName) {
            failInLine(value.line, QStringLiteral("the name of the value has more than %1 characters")
                                       .arg(groupedNumber(longestValueName)));
        }
    }
}

/// The tree and section of a key; nothing for the root of all our trees, which an export of more than our
/// settings names. Everything else is refused.
std::optional<RegistryPlace> checkedPlace(const RegKey &key) {
    const bool shortRoot = key.root.compare(QLatin1StringView("HKCU"), Qt::CaseInsensitive) == 0;
    const QString root = shortRoot ? registryUserRoot.toString() : key.root;
    auto place = registryPlace(root, key.path);
    if (place && isOurTree(place->application)) {
        checkLengths(key);
        return place;
    }
    const bool bareRoot = root.compare(registryUserRoot, Qt::CaseInsensitive) == 0 &&
                          settingsRoot.chopped(1).compare(key.path, Qt::CaseInsensitive) == 0;
    if (bareRoot && !key.deleted && key.values.isEmpty())
        return std::nullopt;
    failInLine(
        key.line,
        QStringLiteral("the key %1\\%2 doesn't belong to the settings of %3. Only keys below "
                       "%4\\%5 are taken")
            .arg(key.root, key.path, applicationTitle(), registryUserRoot.toString(), settingsKeyPath()));
}

void importKey(SettingsStore &store, const RegKey &key) {
    const auto place = checkedPlace(key);
    if (!place)
        return;
    if (key.deleted) {
        store.DeleteSetting(place->application, place->section);
        return;
    }
    store.createSection(place->application, place->section);
    for (const RegValue &value : key.values) {
        if (value.deleted)
            store.DeleteValue(place->application, place->section, value.entry.name);
        else
            store.SaveSetting(place->application, place->section, value.entry.name, value.entry.value);
    }
}

RegKey exportedKey(const SettingsStore &store, const QString &section) {
    RegKey key{registryUserRoot.toString(), settingsKeyPath(section)};
    const auto pairs = store.GetAllSettings(applicationTitle(), section);
    for (const auto &[name, value] : pairs.value_or(QList<SettingsStore::Pair>()))
        key.values += RegValue{{name, value}};
    return key;
}

} // namespace

QByteArray exportedSettings(const SettingsStore &store, ExportScope scope) {
    QList<RegKey> keys;
    QStringList open{scope == ExportScope::PowerButtons ? ButtonSection::parent.toString() : QString()};
    while (!open.isEmpty()) { // a section, then what lies below it, in the order of the store
        const QString section = open.takeLast();
        keys += exportedKey(store, section);
        QStringList below = store.subsections(applicationTitle(), section);
        std::reverse(below.begin(), below.end());
        for (const QString &name : below)
            open += section.isEmpty() ? name : section + u'\\' + name;
    }
    return writeRegFile(keys);
}

void exportSettings(const SettingsStore &store, ExportScope scope, const QString &fileName) {
    const QByteArray bytes = exportedSettings(store, scope);
    if (QFileInfo(fileName).exists() && !QFileInfo(fileName).isFile())
        failForFile(fileName, QStringLiteral("settings can't be written to this file"));
    QSaveFile file(fileName);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit())
        failForFile(fileName, QStringLiteral("the settings could not be written. ") + file.errorString());
}

void importSettings(SettingsStore &store, const QByteArray &file) {
    const QList<RegKey> keys = readRegFile(file);
    SettingsStore::Transaction transaction(store);
    for (const RegKey &key : keys)
        importKey(store, key);
    transaction.commit();
}

void importSettings(SettingsStore &store, const QString &fileName) {
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        failForFile(fileName, QStringLiteral("the file can't be read. ") + file.errorString());
    if (file.size() > largestFile)
        failForFile(fileName, QStringLiteral("the file is too large for a file of settings"));
    try {
        importSettings(store, file.readAll());
    } catch (const Failure &failure) {
        failForFile(fileName, failure.description() + QStringLiteral("\r\nNothing has been imported."));
    }
}

} // namespace tolvo
