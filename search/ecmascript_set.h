// SPDX-License-Identifier: MIT
// The small pieces of a pattern: characters, escapes, classes and bracketed sets, each written for PCRE2.
#pragma once

#include <QString>
#include <QStringView>

namespace tolvo {

/// A literal character. All but ASCII letters and digits go by their code, so that none has a meaning.
[[nodiscard]] QString patternCharacter(char16_t unit);

/// What the engine is told for "^", "$", "\b" and "\B". Every one of the four line end characters ends a
/// line; word characters are the ASCII ones, whatever the case option.
extern const QStringView lineStartAssertion;
extern const QStringView lineEndAssertion;
extern const QStringView wordBoundary;
extern const QStringView noWordBoundary;

/// The members of \d, \D, \w, \W, \s and \S as they stand inside a set, by the letter after the backslash;
/// empty for any other letter.
[[nodiscard]] QStringView classMembers(char16_t letter);

struct CharacterEscape {
    char16_t unit;
    qsizetype length; ///< units after the backslash that belong to it
};

/// The escape of one character, `text` beginning after its backslash and not empty: control characters,
/// \cX, octal, \xHH, \uHHHH; every other character stands for itself.
[[nodiscard]] CharacterEscape readCharacterEscape(QStringView text);

struct TranslatedSet {
    QString pattern;
    QString error;
    qsizetype length = 0; ///< units after the "[" that belong to the set, its "]" included
};

/// A set, `text` beginning after its "[".
[[nodiscard]] TranslatedSet translateSet(QStringView text, bool matchCase);

} // namespace tolvo
