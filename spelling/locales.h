// SPDX-License-Identifier: MIT
// Locales.txt: which Windows language number stands for which locale.
#pragma once

#include <QHash>
#include <QString>

namespace tolvo {

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

/// The table, keyed by the text of its fourth field. Two header lines, then lines of four fields or more with
/// a tab between: locale, a field that is not read, local name, language number in decimal. Other lines are
/// passed over; of two lines with the same number the first counts. UTF-8, with or without a byte order mark.
class Locales {
  public:
    /// A missing file is an empty table.
    explicit Locales(const QString &path);

    /// The locale of a language number, empty if the table has none.
    [[nodiscard]] QString localeOf(int LangID) const;
    /// The language number of a locale, in any case; `otherwise` if the table has none.
    [[nodiscard]] int idOf(const QString &locale, int otherwise) const;
    [[nodiscard]] qsizetype count() const { return m_byNumber.size(); }

    [[nodiscard]] static QString pathIn(const QString &programFolder);

  private:
    void readLine(const QString &line);

    QHash<QString, CLocale> m_byNumber;
    QHash<QString, int> m_numbers; ///< by locale in lower case; of two numbers the first in the table
};

} // namespace tolvo
