// SPDX-License-Identifier: MIT
#pragma once

#include "spelling/spelling_services.h"

#include <QList>
#include <QString>
#include <QStringList>

namespace tolvo {

/// A language that the user can keep words of.
struct UserLanguage {
    QString locale; ///< "de-at"
    QString name;   ///< "Deutsch (Österreich)"
};

/// British English and the languages of all dictionaries found, in the order of their names, and those whose
/// words the user has kept although their dictionary is gone.
[[nodiscard]] QList<UserLanguage> userLanguages(const SpellingServices &services);

/// The words that a user has added to one language. Each operation looks at the file anew, since other runs
/// may change it, and fails with 75 if it can't be read or written.
class UserDictionary {
  public:
    UserDictionary(const SpellingServices &services, QString locale)
        : m_services(services), m_locale(std::move(locale)) {}

    /// What a word has to be: not empty, and without blanks in it.
    [[nodiscard]] static bool isWord(const QString &text);

    /// Each word once, in the order of a dictionary; a missing file has none.
    [[nodiscard]] QStringList words() const;

    /// Adds the words that are not there yet, and returns their number.
    qsizetype add(const QStringList &words);
    void remove(const QStringList &words);

    /// The words of a file with one a line. Blanks around them, and lines that hold no single word, don't
    /// count.
    [[nodiscard]] static QStringList wordsOf(const QString &path);
    /// Writes the words in order, one a line: UTF-8, LF.
    void exportTo(const QString &path) const;

  private:
    [[nodiscard]] QString path() const;

    const SpellingServices &m_services;
    QString m_locale;
};

} // namespace tolvo
