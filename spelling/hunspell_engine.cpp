// SPDX-License-Identifier: MIT
#include "spelling/hunspell_engine.h"

#include <QStringList>
#include <algorithm>
#include <hunspell.hxx>
#include <mutex>
#include <optional>

#include "platform/library_path.h"
#include "spelling/dictionary_check.h"
#include "spelling/dictionary_encoding.h"
#include "spelling/word_forms.h"

namespace tolvo {

/// The library counts the users of its tables without a lock: threads load and unload one after the other.
class HunspellEngine::Library {
  public:
    Library(const QString &aff, const QString &dic) : m_hunspell(load(aff, dic)) {}
    ~Library() {
        const std::lock_guard lock(tables());
        m_hunspell.reset();
    }
    Library(const Library &) = delete;
    Library &operator=(const Library &) = delete;

  private:
    static std::mutex &tables() {
        static std::mutex mutex;
        return mutex;
    }
    static std::unique_ptr<Hunspell> load(const QString &aff, const QString &dic) {
        const std::lock_guard lock(tables());
        return std::make_unique<Hunspell>(libraryPath(aff).constData(), libraryPath(dic).constData());
    }
    std::unique_ptr<Hunspell> m_hunspell;

  public:
    Hunspell &hunspell = *m_hunspell;
    DictionaryEncoding encoding{QByteArray::fromStdString(m_hunspell->get_dict_encoding())};
};

HunspellEngine::HunspellEngine() = default;
HunspellEngine::~HunspellEngine() = default;

bool HunspellEngine::init(const QString &affPath, const QString &dicPath) {
    m_library.reset();
    m_known.clear();
    m_suggested.clear();
    m_recipe = {affPath, dicPath, {}};
    if (!fileFault({affPath, dicPath}).isEmpty())
        return false;
    auto library = std::make_unique<Library>(affPath, dicPath);
    if (!library->encoding.isValid())
        return false;
    m_library = std::move(library);
    return true;
}

bool HunspellEngine::init(const EngineRecipe &recipe) {
    if (!init(recipe.affPath, recipe.dicPath))
        return false;
    for (const QString &word : recipe.added)
        Add(word);
    return true;
}

void HunspellEngine::Add(const QString &word) {
    if (!m_library || word.isEmpty())
        return;
    if (const auto bytes = m_library->encoding.encode(word)) {
        m_library->hunspell.add(*bytes);
        m_recipe.added += word;
        m_known.clear();
    }
}

bool HunspellEngine::Spell(QStringView word) {
    if (!m_library || word.isEmpty())
        return true;
    const QString text = word.toString();
    const auto known = m_known.constFind(text);
    if (known != m_known.cend())
        return *known;
    const QStringList others = otherForms(text);
    const bool good = knows(text) || std::any_of(others.cbegin(), others.cend(),
                                                 [this](const QString &form) { return knows(form); });
    m_known.insert(text, good);
    return good;
}

bool HunspellEngine::knows(const QString &word) {
    const auto bytes = m_library->encoding.encode(word);
    return bytes && m_library->hunspell.spell(*bytes);
}

QString HunspellEngine::wordCharacters() const {
    return m_library ? m_library->encoding.decode(m_library->hunspell.get_wordchars_cpp()) : QString();
}

QString HunspellEngine::converted(const QString &text) const {
    std::string after;
    const auto bytes = m_library ? m_library->encoding.encode(text) : std::nullopt;
    return bytes && m_library->hunspell.input_conv(*bytes, after) ? m_library->encoding.decode(after) : text;
}

QString HunspellEngine::suggest(const QString &word) {
    if (!m_library || word.isEmpty())
        return {};
    const auto kept = m_suggested.constFind(word);
    if (kept != m_suggested.cend())
        return *kept;
    const auto bytes = m_library->encoding.encode(plainForm(word));
    if (!bytes)
        return {};
    QStringList suggestions;
    for (const std::string &suggestion : m_library->hunspell.suggest(*bytes))
        suggestions += withApostropheOf(word, m_library->encoding.decode(suggestion));
    return *m_suggested.insert(word, suggestions.join(u'|'));
}

} // namespace tolvo
