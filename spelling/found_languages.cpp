// SPDX-License-Identifier: MIT
#include "spelling/found_languages.h"

#include "base/collation.h"
#include "spelling/language_names.h"
#include "spelling/spelling_services.h"

#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QSet>

namespace tolvo {

namespace {

/// The pairs of one folder, by name without extension.
QHash<QString, DictionaryFiles> pairsIn(const QString &path) {
    QHash<QString, DictionaryFiles> pairs;
    const QDir folder(path);
    for (const QString &name :
         folder.entryList({QStringLiteral("*.aff"), QStringLiteral("*.dic")}, QDir::Files)) {
        DictionaryFiles &files = pairs[name.chopped(4)];
        (name.endsWith(QStringLiteral("aff"), Qt::CaseInsensitive) ? files.aff : files.dic) =
            folder.filePath(name);
    }
    pairs.removeIf([](const auto &pair) { return pair->aff.isEmpty() || pair->dic.isEmpty(); });
    return pairs;
}

QList<FoundLanguage> sortedByName(const QList<FoundLanguage> &languages) {
    QHash<const QChar *, const FoundLanguage *> ofName;
    QList<QStringView> names;
    for (const FoundLanguage &language : languages) {
        names += language.name;
        ofName.insert(language.name.constData(), &language);
    }
    QList<FoundLanguage> sorted;
    for (const QStringView name : sortedByCollation(names))
        sorted += *ofName.value(name.data());
    return sorted;
}

} // namespace

QString localeOfFile(const QString &baseName) {
    return QString(baseName).replace(u'_', u'-').toLower();
}

QString FoundLanguage::place() const {
    switch (source) {
    case DictionarySource::Program:
        return QStringLiteral("With Tolvo");
    case DictionarySource::User:
        return QStringLiteral("Added by you");
    case DictionarySource::System:
        break;
    }
    return QDir::toNativeSeparators(QFileInfo(files.dic).path());
}

QList<FoundLanguage> foundLanguages(const SpellingServices &services) {
    QList<FoundLanguage> languages;
    QSet<QString> known;
    for (const DictionaryFolder &folder : dictionaryFolders(services)) {
        const QHash<QString, DictionaryFiles> pairs = pairsIn(folder.path);
        for (auto pair = pairs.cbegin(); pair != pairs.cend(); ++pair) {
            const QString locale = localeOfFile(pair.key());
            if (known.contains(locale))
                continue;
            known.insert(locale);
            languages += {locale, languageName(locale), *pair, folder.source};
        }
    }
    return sortedByName(languages);
}

} // namespace tolvo
