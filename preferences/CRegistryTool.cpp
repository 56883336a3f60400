// SPDX-License-Identifier: MIT
#include "preferences/CRegistryTool.h"

#include "base/application.h"
#include "base/strings.h"
#include "preferences/settings_store.h"

namespace tolvo {

QString settingsKeyPath(const QString &section) {
    const QString tree = settingsRoot.toString() + applicationTitle();
    return section.isEmpty() ? tree : tree + u'\\' + section;
}

std::optional<RegistryPlace> registryPlace(const QString &root, const QString &path) {
    const bool ours = root.compare(registryUserRoot, Qt::CaseInsensitive) == 0 &&
                      path.startsWith(settingsRoot, Qt::CaseInsensitive);
    if (!ours)
        return std::nullopt;
    const QString below = path.sliced(settingsRoot.size());
    const qsizetype level = below.indexOf(u'\\');
    if (below.isEmpty() || level == 0)
        return std::nullopt;
    if (level < 0)
        return RegistryPlace{below, {}};
    return RegistryPlace{below.first(level), below.sliced(level + 1)};
}

bool CRegistryTool::CheckRegistryKey(const QString &root, const QString &path) const {
    const auto place = registryPlace(root, path);
    return place && m_store.sectionExists(place->application, place->section);
}

QStringList CRegistryTool::EnumRegistryKeys(const QString &root, const QString &path) const {
    const auto place = registryPlace(root, path);
    if (!place)
        return {};
    QStringList names = m_store.subsections(place->application, place->section);
    for (QString &name : names)
        CToBStr(name);
    return names;
}

bool CRegistryTool::DeleteRegistryKey(const QString &root, const QString &path) {
    const auto place = registryPlace(root, path);
    if (!place || !m_store.sectionExists(place->application, place->section) ||
        !m_store.subsections(place->application, place->section).isEmpty())
        return false;
    m_store.DeleteSetting(place->application, place->section);
    return true;
}

void CRegistryTool::EraseRegistryTree(const QString &root, const QString &path) {
    if (const auto place = registryPlace(root, path))
        m_store.DeleteSetting(place->application, place->section);
}

} // namespace tolvo
