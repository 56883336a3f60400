// SPDX-License-Identifier: MIT
// The interface of the providers of spelling errors.
#pragma once

#include "base/failure.h"
#include "spelling/spelling_errors.h"

#include <QString>
#include <optional>

namespace tolvo {

class MessageBoxes;

/// The numbers of the providers, as the settings store keeps them.
namespace providerType {
inline constexpr int word = 0;
inline constexpr int hunspell = 1;
inline constexpr int afterTheDeadline = 2;
inline constexpr int ginger = 3;
} // namespace providerType

/// "Microsoft Word", "Hunspell", "After the Deadline", "Ginger"; empty for any other number.
[[nodiscard]] QString providerName(int type);

/// The user ended a provider's request. The caller that began the check catches this and shows nothing.
class CheckCancelled : public Failure {
  public:
    static constexpr int userInterrupt = 18;
    CheckCancelled() : Failure(userInterrupt, QStringLiteral("The check was cancelled")) {}
};

/// One provider, for one check.
class SpellingProvider {
  public:
    virtual ~SpellingProvider() = default;
    /// The errors of a text whose lines end in CR alone; nothing if the provider didn't answer, which it has
    /// reported. Fails with CheckCancelled if the user ended the wait.
    [[nodiscard]] virtual std::optional<CSpellingErrors> check(const QString &text) = 0;
    /// Remembers a word for later checks; most providers can't and do nothing.
    virtual void AddToCustomDic(const QString & /*word*/) {}
};

/// Appends the word to a dictionary file as one line. A failure is reported as AddWordToDict's.
void AddWordToDict(MessageBoxes &boxes, const QString &path, const QString &word);

} // namespace tolvo
