// SPDX-License-Identifier: MIT
#include "spelling/hunspell_engine.h"

#include <QFile>
#include <QStringList>
#include <hunspell.hxx>
#include <optional>

#include "spelling/dictionary_encoding.h"

namespace tolvo {

namespace {

QByteArray firstLine(const QString &path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QByteArray line = file.readLine(4096);
    if (line.startsWith("\xEF\xBB\xBF"))
        line.remove(0, 3);
    return line.trimmed();
}

/// A dictionary starts with the number of its words. Given any other file, the library prints an error and
/// then accepts no word.
bool startsWithCount(const QString &dicPath) {
    const QByteArray line = firstLine(dicPath);
    bool isNumber = false;
    return line.split(' ').first().split('\t').first().toLongLong(&isNumber) > 0 && isNumber;
}

bool holdsSomething(const QString &path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && file.size() > 0;
}

} // namespace

class HunspellEngine::Library {
  public:
    Library(const QString &aff, const QString &dic)
        : hunspell(QFile::encodeName(aff).constData(), QFile::encodeName(dic).constData()),
          encoding(QByteArray::fromStdString(hunspell.get_dict_encoding())) {}

    Hunspell hunspell;
    DictionaryEncoding encoding;
};

HunspellEngine::HunspellEngine() = default;
HunspellEngine::~HunspellEngine() = default;

bool HunspellEngine::init(const QString &affPath, const QString &dicPath) {
    m_library.reset();
    m_known.clear();
    if (!holdsSomething(affPath) || !startsWithCount(dicPath))
        return false;
    auto library = std::make_unique<Library>(affPath, dicPath);
    if (!library->encoding.isValid())
        return false;
    m_library = std::move(library);
    return true;
}

void HunspellEngine::Add(const QString &word) {
    if (!m_library || word.isEmpty())
        return;
    if (const auto bytes = m_library->encoding.encode(word)) {
        m_library->hunspell.add(*bytes);
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
    const auto bytes = m_library->encoding.encode(text);
    const bool good = bytes && m_library->hunspell.spell(*bytes);
    m_known.insert(text, good);
    return good;
}

QString HunspellEngine::suggest(const QString &word) {
    if (!m_library || word.isEmpty())
        return {};
    const auto bytes = m_library->encoding.encode(word);
    if (!bytes)
        return {};
    QStringList suggestions;
    for (const std::string &suggestion : m_library->hunspell.suggest(*bytes))
        suggestions += m_library->encoding.decode(suggestion);
    return suggestions.join(u'|');
}

} // namespace tolvo
