// SPDX-License-Identifier: MIT
#include "preferences/setting.h"

#include "base/application.h"

#include <algorithm>

namespace tolvo {

namespace {

constexpr char16_t firstListKey = u'a';

} // namespace

QString treeName(SettingsTree tree) {
    return tree == SettingsTree::Statistics ? statisticsTree() : applicationTitle();
}

void increment(SettingsStore &store, const Setting<forms::Count> &counter) {
    store.increment(treeName(counter.section.tree), counter.section.path(), counter.name.toString());
}

void remove(SettingsStore &store, const Setting<forms::Count> &counter) {
    store.DeleteValue(treeName(counter.section.tree), counter.section.path(), counter.name.toString());
}

QList<SettingsStore::Pair> pairsOf(const SettingsStore &store, const Section &section) {
    return store.GetAllSettings(treeName(section.tree), section.path())
        .value_or(QList<SettingsStore::Pair>());
}

QStringList get(const SettingsStore &store, const SettingList &list) {
    auto pairs = pairsOf(store, list.section);
    pairs.removeIf([](const SettingsStore::Pair &pair) {
        return pair.first.size() != 1 || pair.first.front().unicode() < firstListKey;
    });
    std::sort(pairs.begin(), pairs.end());
    QStringList entries;
    for (const SettingsStore::Pair &pair : std::as_const(pairs))
        entries += pair.second;
    return entries;
}

void set(SettingsStore &store, const SettingList &list, const QStringList &entries) {
    const QString tree = treeName(list.section.tree);
    SettingsStore::Transaction transaction(store);
    store.DeleteSetting(tree, list.section.path());
    char16_t key = firstListKey;
    for (const QString &entry : entries)
        store.SaveSetting(tree, list.section.path(), QString(QChar(key++)), entry);
    transaction.commit();
}

} // namespace tolvo
