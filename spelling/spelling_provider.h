// SPDX-License-Identifier: MIT
// What a provider of spelling errors is.
#pragma once

#include "base/failure.h"
#include "spelling/spelling_errors.h"

#include <QString>
#include <optional>

namespace tolvo {

class MessageBoxes;

/// Numbers as they are stored.
namespace providerType {
inline constexpr int word = 0;
inline constexpr int hunspell = 1;
inline constexpr int afterTheDeadline = 2;
inline constexpr int ginger = 3;
} // namespace providerType

/// "Microsoft Word", "Hunspell", "After the Deadline", "Ginger"; empty for any other number.
[[nodiscard]] QString providerName(int type);

/// The user has ended a provider's request. Whoever began the check catches it and says nothing.
class CheckCancelled : public Failure {
  public:
    static constexpr int userInterrupt = 18;
    CheckCancelled() : Failure(userInterrupt, QStringLiteral("The check was cancelled")) {}
};

class SpellingProvider {
  public:
    virtual ~SpellingProvider() = default;
    /// The errors of a text whose lines end in CR alone; nothing if the provider didn't answer, which has
    /// been reported. Fails with CheckCancelled if the user ended the wait for an answer.
    [[nodiscard]] virtual std::optional<CSpellingErrors> check(const QString &text) = 0;
    /// Remembers a word for later checks. Most providers can't.
    virtual void AddToCustomDic(const QString & /*word*/) {}
};

/// Appends the word to a dictionary file as one line; a failure is reported as AddWordToDict.
void AddWordToDict(MessageBoxes &boxes, const QString &path, const QString &word);

} // namespace tolvo
