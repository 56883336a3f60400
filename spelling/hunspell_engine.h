// SPDX-License-Identifier: MIT
// The Hunspell library behind four operations, which convert words to and from the dictionary's own encoding.
#pragma once

#include <QHash>
#include <QString>
#include <QStringView>
#include <memory>

namespace tolvo {

/// One loaded dictionary.
class HunspellEngine {
  public:
    HunspellEngine();
    ~HunspellEngine();
    HunspellEngine(const HunspellEngine &) = delete;
    HunspellEngine &operator=(const HunspellEngine &) = delete;

    /// Loads a dictionary. False if a file is missing, can't be read or is not in Hunspell's format.
    [[nodiscard]] bool init(const QString &affPath, const QString &dicPath);

    /// Adds a word to the loaded dictionary, not to its file. The empty word has no effect, nor has one that
    /// the dictionary's encoding can't hold.
    void Add(const QString &word);

    /// True if the word is spelled correctly. The empty word is, and so is every word while no dictionary is
    /// loaded. Answers are kept, so that a word is looked up once.
    [[nodiscard]] bool Spell(QStringView word);

    /// The suggestions, best first, joined with "|"; empty if there are none.
    [[nodiscard]] QString suggest(const QString &word);

  private:
    class Library;
    std::unique_ptr<Library> m_library;
    QHash<QString, bool> m_known;
};

} // namespace tolvo
