// SPDX-License-Identifier: MIT
#include "spelling/spelling_errors.h"

#include "base/failure.h"

#include <QStringList>
#include <algorithm>
#include <utility>

namespace tolvo {

namespace {

[[noreturn]] void failNoItem() {
    throw Failure(failureNumber::invalidArgument, QStringLiteral("The list has no such item"));
}

[[noreturn]] void failKeyTaken(const QString &key) {
    throw Failure(failureNumber::duplicateKey, QStringLiteral("The list has the key '%1' already").arg(key));
}

} // namespace

void CSpellingSuggestions::make() const {
    // Removed before it runs, since the maker itself adds to this list.
    if (const Maker maker = std::exchange(m_maker, nullptr))
        maker(const_cast<CSpellingSuggestions &>(*this));
}

qsizetype CSpellingSuggestions::indexOfKey(const QString &key) const {
    if (key.isEmpty())
        return -1;
    for (qsizetype i = 0; i < m_entries.size(); ++i) {
        if (m_entries[i].key == key)
            return i;
    }
    return -1;
}

const CSpellingSuggestion &CSpellingSuggestions::Add(const QString &field, const QString &suggestion,
                                                     const QString &key) {
    make();
    if (indexOfKey(key) >= 0)
        failKeyTaken(key);
    m_entries.append({{field, suggestion}, key});
    return m_entries.constLast().suggestion;
}

bool CSpellingSuggestions::Exists(const QString &key) const {
    make();
    return indexOfKey(key) >= 0;
}

const CSpellingSuggestion &CSpellingSuggestions::Item(qsizetype index) const {
    make();
    if (index < 1 || index > m_entries.size())
        failNoItem();
    return m_entries[index - 1].suggestion;
}

const CSpellingSuggestion &CSpellingSuggestions::Item(const QString &key) const {
    make();
    return Item(indexOfKey(key) + 1);
}

void CSpellingSuggestions::Remove(qsizetype index) {
    make();
    if (index < 1 || index > m_entries.size())
        failNoItem();
    m_entries.removeAt(index - 1);
}

void CSpellingSuggestions::Remove(const QString &key) {
    make();
    Remove(indexOfKey(key) + 1);
}

qsizetype CSpellingSuggestions::Count() const {
    make();
    return m_entries.size();
}

bool CSpellingSuggestions::holds(const QString &suggestion) const {
    make();
    return std::any_of(m_entries.cbegin(), m_entries.cend(),
                       [&](const Entry &entry) { return entry.suggestion.Suggestion == suggestion; });
}

QStringList CSpellingSuggestions::texts() const {
    make();
    QStringList texts;
    for (const Entry &entry : std::as_const(m_entries))
        texts += entry.suggestion.Suggestion;
    return texts;
}

void CSpellingError::init(const QString &errorText, qsizetype textStart, qsizetype textEnd, int type) {
    m_errorText = errorText;
    m_textStart = textStart;
    m_textEnd = textEnd;
    errorType = type;
}

CSpellingError &CSpellingErrors::Add(const QString &errorText, qsizetype textStart, qsizetype textEnd,
                                     int type, const QString &key) {
    if (!key.isEmpty() && m_keys.contains(key))
        failKeyTaken(key);
    const auto item = std::make_shared<CSpellingError>();
    item->init(errorText, textStart, textEnd, type);
    m_items.append(item);
    if (!key.isEmpty()) {
        m_keys.insert(key, item);
        m_keyOf.insert(item.get(), key);
    }
    return *item;
}

qsizetype CSpellingErrors::indexOfKey(const QString &key) const {
    const auto found = m_keys.constFind(key);
    // From the end: callers mostly replace what they have just added.
    return found == m_keys.cend() ? 0 : m_items.lastIndexOf(*found) + 1;
}

qsizetype CSpellingErrors::AddItem(const Pointer &item, qsizetype before) {
    const QString &key = item->ErrorText();
    const qsizetype older = indexOfKey(key);
    if (older > 0)
        Remove(older);
    if (before < 1 || before > m_items.size())
        m_items.append(item);
    else
        m_items.insert(before - 1, item);
    if (!key.isEmpty()) {
        m_keys.insert(key, item);
        m_keyOf.insert(item.get(), key);
    }
    return older;
}

CSpellingError &CSpellingErrors::Item(qsizetype index) const {
    if (index < 1 || index > m_items.size())
        failNoItem();
    return *m_items[index - 1];
}

CSpellingError &CSpellingErrors::Item(const QString &key) const {
    return Item(indexOfKey(key));
}

void CSpellingErrors::Remove(qsizetype index) {
    if (index < 1 || index > m_items.size())
        failNoItem();
    const Pointer item = m_items.takeAt(index - 1);
    const QString key = m_keyOf.take(item.get());
    if (!key.isEmpty())
        m_keys.remove(key);
}

void CSpellingErrors::Remove(const QString &key) {
    Remove(indexOfKey(key));
}

void CSpellingErrors::RemoveAll() {
    m_items.clear();
    m_keys.clear();
    m_keyOf.clear();
}

bool errorAtPosition(qsizetype position, const CSpellingErrors &errors) {
    return std::any_of(errors.begin(), errors.end(), [position](const CSpellingErrors::Pointer &error) {
        return error->TextStart() == position;
    });
}

} // namespace tolvo
