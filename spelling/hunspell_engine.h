// SPDX-License-Identifier: MIT
// The Hunspell library behind four operations, which convert words to and from the dictionary's own encoding.
#pragma once

#include <QHash>
#include <QString>
#include <QStringList>
#include <QStringView>
#include <memory>

namespace tolvo {

/// What a second engine needs to know the same words.
struct EngineRecipe {
    QString affPath;
    QString dicPath;
    QStringList added;
};

/// One loaded dictionary. An engine serves one thread at a time.
class HunspellEngine {
  public:
    HunspellEngine();
    ~HunspellEngine();
    HunspellEngine(const HunspellEngine &) = delete;
    HunspellEngine &operator=(const HunspellEngine &) = delete;

    /// Loads a dictionary. False if a file is missing, can't be read or is not in Hunspell's format.
    [[nodiscard]] bool init(const QString &affPath, const QString &dicPath);
    /// Loads what another engine has loaded, with the words that it was given.
    [[nodiscard]] bool init(const EngineRecipe &recipe);
    [[nodiscard]] bool isLoaded() const { return m_library != nullptr; }
    [[nodiscard]] const EngineRecipe &recipe() const { return m_recipe; }

    /// Adds a word to the loaded dictionary, not to its file. The empty word has no effect, nor has one that
    /// the dictionary's encoding can't hold.
    void Add(const QString &word);

    /// True if the word is spelled correctly, in one of its forms (word_forms.h). The empty word is, and so
    /// is every word while no dictionary is loaded. Answers are kept, so that a word is looked up once.
    [[nodiscard]] bool Spell(QStringView word);

    /// The suggestions, best first, joined with "|"; empty if there are none. Their apostrophes are those of
    /// the word. Kept, as finding them takes tens of milliseconds. Words that were added since are not among
    /// them.
    [[nodiscard]] QString suggest(const QString &word);
    [[nodiscard]] bool hasSuggestions(const QString &word) const { return m_suggested.contains(word); }
    /// Keeps what another engine suggests for a word.
    void keepSuggestions(const QString &word, const QString &joined) { m_suggested.insert(word, joined); }

    /// The characters that the dictionary has in words besides letters (WORDCHARS).
    [[nodiscard]] QString wordCharacters() const;
    /// What the dictionary makes of a text before it looks it up (ICONV).
    [[nodiscard]] QString converted(const QString &text) const;

  private:
    class Library;
    [[nodiscard]] bool knows(const QString &word);

    std::unique_ptr<Library> m_library;
    EngineRecipe m_recipe;
    QHash<QString, bool> m_known;
    QHash<QString, QString> m_suggested;
};

} // namespace tolvo
