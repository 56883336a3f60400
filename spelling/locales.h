// SPDX-License-Identifier: MIT
// Locales.txt: the locales and their Windows language numbers ([MS-LCID], Windows Language Code Identifier
// Reference).
#pragma once

#include <QHash>
#include <QString>

namespace tolvo {

/// One row of the table.
struct CLocale {
    QString LCID; ///< name of the locale, "en-gb"
    int LangID = 0;
    QString LocalName; ///< what the language calls itself

    void init(const QString &lcid, int langID, const QString &localName) {
        LCID = lcid;
        LangID = langID;
        LocalName = localName;
    }
};

/// The table of a file: two header lines, then lines of four or more fields with a TAB between them: locale,
/// a field that is not read, local name, language number in decimal. Other lines are skipped; of two lines
/// with the same number the first counts. UTF-8, with or without a byte order mark.
class Locales {
  public:
    /// Reads a file; the table of a missing file is empty.
    explicit Locales(const QString &path);

    /// The locale of a language number, empty if the table has none.
    [[nodiscard]] QString localeOf(int LangID) const;
    /// The language number of a locale, in any case; `otherwise` if the table has none.
    [[nodiscard]] int idOf(const QString &locale, int otherwise) const;
    /// The number of rows with a language number.
    [[nodiscard]] qsizetype count() const { return m_byNumber.size(); }

    /// The path of Locales.txt in the program folder.
    [[nodiscard]] static QString pathIn(const QString &dataFolder);

  private:
    void readLine(const QString &line);

    QHash<QString, CLocale> m_byNumber;
    QHash<QString, int> m_numbers; ///< by locale in lower case; the first number counts
};

} // namespace tolvo
