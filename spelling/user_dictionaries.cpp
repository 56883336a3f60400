// SPDX-License-Identifier: MIT
#include "spelling/user_dictionaries.h"

#include "base/private_files.h"
#include "spelling/dictionaries.h"
#include "spelling/spelling_provider.h"
#include "spelling/word_list.h"

#include <QFile>
#include <QFileInfo>

namespace tolvo {

namespace {

/// Never that of another folder.
QString nameOf(const QString &locale) {
    return QString(locale).replace(u'-', u'_').replace(u'/', u'_').replace(u'\\', u'_').toLower();
}

bool isBritish(const QString &locale) {
    return nameOf(locale) == QStringLiteral("en_gb");
}

} // namespace

QString userDictionaryPath(const SpellingServices &services, const QString &locale) {
    QString british = personalDictionaryPath(services);
    if (isBritish(locale))
        return british;
    return QFileInfo(british).path() + QStringLiteral("/persdict_%1.dat").arg(nameOf(locale));
}

QStringList readUserDictionary(const SpellingServices &services, const QString &locale) {
    const QString path = userDictionaryPath(services, locale);
    if (!isBritish(locale) && !QFile::exists(path))
        return {};
    return readWordList(path);
}

void ensureUserDictionary(const SpellingServices &services, const QString &locale) {
    const QString path = userDictionaryPath(services, locale);
    makePrivateFolder(QFileInfo(path).path());
    makePrivateFile(path);
}

void addUserWord(const SpellingServices &services, const QString &locale, const QString &word) {
    if (!isBritish(locale))
        ensureUserDictionary(services, locale);
    AddWordToDict(services.boxes, userDictionaryPath(services, locale), word);
}

} // namespace tolvo
