// SPDX-License-Identifier: MIT
// The Hunspell library behind four operations. Words go in and out in the dictionary's own encoding.
#pragma once

#include <QHash>
#include <QString>
#include <QStringView>
#include <memory>

namespace tolvo {

class HunspellEngine {
  public:
    HunspellEngine();
    ~HunspellEngine();
    HunspellEngine(const HunspellEngine &) = delete;
    HunspellEngine &operator=(const HunspellEngine &) = delete;

    /// Loads a dictionary. False if a file is missing, can't be read or is no such file at all.
    [[nodiscard]] bool init(const QString &affPath, const QString &dicPath);

    /// Adds a word for this run. The empty word, and one that the dictionary's encoding can't hold, has no
    /// effect.
    void Add(const QString &word);

    /// True if the word is acceptable. The empty word is, and so is every word while no dictionary is loaded.
    /// Each word is looked up once.
    [[nodiscard]] bool Spell(QStringView word);

    /// The suggestions, best first, joined with "|"; empty if there are none.
    [[nodiscard]] QString suggest(const QString &word);

  private:
    class Library;
    std::unique_ptr<Library> m_library;
    QHash<QString, bool> m_known;
};

} // namespace tolvo
