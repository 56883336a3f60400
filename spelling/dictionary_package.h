// SPDX-License-Identifier: MIT
// Dictionaries in a zip file, as office suites hand them out (.oxt). Such a package lists the files and the
// locales of its dictionaries in dictionaries.xcu, in XML.
#pragma once

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

namespace tolvo {

/// The two files of a dictionary before they are written.
struct DictionaryContents {
    QString baseName; ///< of the files: "de_AT"
    QByteArray aff;
    QByteArray dic;
};

/// What has been taken out of a package, or a sentence for the user about why nothing was.
struct DictionaryPackage {
    QList<DictionaryContents> dictionaries;
    QString fault;
};

/// Reads all dictionaries of a zip file into memory. They are named after the first of the locales that the
/// package lists for them, or else after their files. A package is refused as a whole if it can't be read, is
/// damaged or encrypted, has names that lead out of it, holds too much, or no dictionary.
[[nodiscard]] DictionaryPackage readPackage(const QString &path);

/// The locales that a list of dictionaries gives for the file names in it, without folders:
/// {"de_AT_frami.aff": ["de-AT"]}. What can't be read of the list is left out.
[[nodiscard]] QHash<QString, QStringList> localesInList(const QByteArray &xcu);

} // namespace tolvo
