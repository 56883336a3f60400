// SPDX-License-Identifier: MIT
// The error model of all providers: errors with their place, and suggestions for each.
#pragma once

#include <QHash>
#include <QList>
#include <QString>
#include <QStringView>
#include <array>
#include <functional>
#include <memory>

namespace tolvo {

/// Values of CSpellingError::errorType, as they are kept in replies and tables.
namespace spellingErrorType {
inline constexpr int unknown = -1;
inline constexpr int none = 0;
inline constexpr int notInDictionary = 1;
inline constexpr int capitalisation = 2;
inline constexpr int grammar = 3;
inline constexpr int style = 4;
} // namespace spellingErrorType

/// The label of an error stands at index errorType + 1.
inline constexpr std::array<QStringView, 6> aSpellErrorTypes{
    u"Unknown error", u"(No error)", u"Not in dictionary", u"Capitalisation", u"Grammar error", u"Style"};

/// One suggestion.
struct CSpellingSuggestion {
    QString field; ///< the provider's own note (a number, the wrong word); not read anywhere
    QString Suggestion;
};

/// The suggestions for one error: an ordered list with optional keys, indexes from 1. A list with a maker is
/// filled when it is first read: finding suggestions is slow, and most lists are never read.
class CSpellingSuggestions {
  public:
    using Maker = std::function<void(CSpellingSuggestions &)>;

    CSpellingSuggestions() = default;
    /// `maker` adds the suggestions to the list that it is given.
    explicit CSpellingSuggestions(Maker maker) : m_maker(std::move(maker)) {}

    /// Appends a suggestion; an empty key stands for none. Fails with 457 if the key is taken.
    const CSpellingSuggestion &Add(const QString &field, const QString &suggestion, const QString &key);
    /// Whether the list has an item with a key.
    [[nodiscard]] bool Exists(const QString &key) const;
    /// The item at an index or with a key. These, and Remove, fail with 5 if there is none.
    [[nodiscard]] const CSpellingSuggestion &Item(qsizetype index) const;
    [[nodiscard]] const CSpellingSuggestion &Item(const QString &key) const;
    void Remove(qsizetype index);
    void Remove(const QString &key);
    [[nodiscard]] qsizetype Count() const;

    /// Whether an item has exactly this suggestion.
    [[nodiscard]] bool holds(const QString &suggestion) const;
    /// The suggestions in order.
    [[nodiscard]] QStringList texts() const;

  private:
    struct Entry {
        CSpellingSuggestion suggestion;
        QString key;
    };
    void make() const;
    [[nodiscard]] qsizetype indexOfKey(const QString &key) const;

    mutable Maker m_maker;
    mutable QList<Entry> m_entries;
};

/// One error. Offsets count UTF-16 units from 0, in a text whose lines end in CR alone.
class CSpellingError {
  public:
    CSpellingError() : m_suggestions(std::make_shared<CSpellingSuggestions>()) {}

    /// Sets text, place and type (one of spellingErrorType); the suggestions stay.
    void init(const QString &errorText, qsizetype textStart, qsizetype textEnd, int type);

    [[nodiscard]] const QString &ErrorText() const { return m_errorText; }
    [[nodiscard]] qsizetype TextStart() const { return m_textStart; }
    /// The offset after the last character.
    [[nodiscard]] qsizetype TextEnd() const { return m_textEnd; }
    [[nodiscard]] qsizetype length() const { return m_textEnd - m_textStart; }

    int errorType = spellingErrorType::none;
    QString Description;

    [[nodiscard]] CSpellingSuggestions &SpellingSuggestions() const { return *m_suggestions; }
    void setSpellingSuggestions(std::shared_ptr<CSpellingSuggestions> suggestions) {
        m_suggestions = std::move(suggestions);
    }

  private:
    QString m_errorText;
    qsizetype m_textStart = 0;
    qsizetype m_textEnd = 0;
    std::shared_ptr<CSpellingSuggestions> m_suggestions;
};

/// The errors of a text: an ordered list with optional keys, indexes from 1. Copies share the errors and are
/// cheap until one of the lists changes.
class CSpellingErrors {
  public:
    using Pointer = std::shared_ptr<CSpellingError>;

    CSpellingErrors() = default;
    /// A list of these errors, without keys.
    explicit CSpellingErrors(QList<Pointer> items) : m_items(std::move(items)) {}

    /// Appends a new error; an empty key stands for none. Fails with 457 if the key is taken.
    CSpellingError &Add(const QString &errorText, qsizetype textStart, qsizetype textEnd, int type,
                        const QString &key = {});
    /// Inserts an error, with its text as its key, before index `before`, or at the end if there is no such
    /// index. An error with the same key is removed first; returns the index it had, or 0.
    qsizetype AddItem(const Pointer &item, qsizetype before = 0);
    /// Whether the list has an item with a key.
    [[nodiscard]] bool Exists(const QString &key) const { return m_keys.contains(key); }
    /// The item at an index or with a key. These, and Remove, fail with 5 if there is none.
    [[nodiscard]] CSpellingError &Item(qsizetype index) const;
    [[nodiscard]] CSpellingError &Item(const QString &key) const;
    void Remove(qsizetype index);
    void Remove(const QString &key);
    [[nodiscard]] qsizetype Count() const { return m_items.size(); }
    void RemoveAll(); ///< lives for its fixed name alone

    [[nodiscard]] auto begin() const { return m_items.cbegin(); }
    [[nodiscard]] auto end() const { return m_items.cend(); }

  private:
    [[nodiscard]] qsizetype indexOfKey(const QString &key) const;

    QList<Pointer> m_items;
    QHash<QString, Pointer> m_keys;
    QHash<const CSpellingError *, QString> m_keyOf;
};

/// True if an error of the list starts at `position`. It lives for its fixed name alone.
[[nodiscard]] bool errorAtPosition(qsizetype position, const CSpellingErrors &errors);

} // namespace tolvo
