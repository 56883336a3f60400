// SPDX-License-Identifier: MIT
#include "spelling/UserDictionary.h"

#include "base/collation.h"
#include "base/failure.h"
#include "preferences/settings_keys.h"
#include "spelling/found_languages.h"
#include "spelling/language_names.h"
#include "spelling/user_dictionaries.h"
#include "spelling/word_list.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QSet>
#include <algorithm>

namespace tolvo {

namespace {

/// The words of some lines, each once.
QStringList cleaned(const QStringList &lines) {
    QStringList words;
    for (const QString &line : lines) {
        if (UserDictionary::isWord(line.trimmed()))
            words += line.trimmed();
    }
    words.removeDuplicates();
    return words;
}

/// The locales that have a file.
QStringList keptLocales(const SpellingServices &services) {
    const QString pattern = userDictionaryPath(services, QStringLiteral("*"));
    const qsizetype front = QFileInfo(pattern).fileName().indexOf(u'*');
    QStringList locales;
    for (const QString &name :
         QDir(QFileInfo(pattern).path()).entryList({QFileInfo(pattern).fileName()}, QDir::Files))
        locales += localeOfFile(QFileInfo(name).completeBaseName().sliced(front));
    return locales;
}

} // namespace

QList<UserLanguage> userLanguages(const SpellingServices &services) {
    QList<UserLanguage> languages;
    QSet<QString> known;
    const auto take = [&](const QString &locale, const QString &name) {
        if (!known.contains(locale))
            languages += {locale, name};
        known.insert(locale);
    };
    for (const FoundLanguage &found : foundLanguages(services))
        take(found.locale, found.name);
    for (const QString &locale :
         QStringList(settingKeys.spelling.hunLocale.otherwise()) + keptLocales(services))
        take(locale, languageName(locale));
    return languages;
}

bool UserDictionary::isWord(const QString &text) {
    return !text.isEmpty() &&
           std::none_of(text.begin(), text.end(), [](QChar unit) { return unit.isSpace(); });
}

QString UserDictionary::path() const {
    return userDictionaryPath(m_services, m_locale);
}

QStringList UserDictionary::words() const {
    if (!QFile::exists(path()))
        return {};
    const QStringList words = cleaned(readWordList(path()));
    QStringList sorted;
    for (const QStringView word : sortedByCollation(QList<QStringView>(words.begin(), words.end())))
        sorted += word.toString();
    return sorted;
}

qsizetype UserDictionary::add(const QStringList &words) {
    ensureUserDictionary(m_services, m_locale);
    const QStringList before = readWordList(path());
    const QSet<QString> known(before.begin(), before.end());
    QStringList added;
    for (const QString &word : cleaned(words)) {
        if (!known.contains(word))
            added += word;
    }
    if (!added.isEmpty())
        appendWords(path(), added);
    return added.size();
}

void UserDictionary::remove(const QStringList &words) {
    removeWords(path(), words);
}

QStringList UserDictionary::wordsOf(const QString &path) {
    return cleaned(readWordList(path));
}

void UserDictionary::exportTo(const QString &path) const {
    QSaveFile file(path);
    const QByteArray bytes = words().join(u'\n').toUtf8();
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes.isEmpty() ? bytes : bytes + '\n') < 0 ||
        !file.commit())
        throw Failure(failureNumber::fileAccess, path + QStringLiteral(": ") + file.errorString());
}

} // namespace tolvo
