// SPDX-License-Identifier: MIT
// Ginger: a web service that answers in JSONP, a JSON value (RFC 8259) as the argument of a function call.
// The provider is deliberately incomplete: it sends nothing, reads the top level of a fixed sample reply, and
// finds no errors in any text.
#pragma once

#include "spelling/spelling_provider.h"
#include "spelling/spelling_services.h"

#include <QString>

namespace tolvo {

/// Provider 3.
class GingerProvider final : public SpellingProvider {
  public:
    GingerProvider(const SpellingServices &services, const QString &locale)
        : m_services(services), m_locale(locale) {}

    /// Always an empty list.
    [[nodiscard]] std::optional<CSpellingErrors> check(const QString &text) override;

  private:
    const SpellingServices &m_services;
    QString m_locale;
};

/// The sample reply, whatever the arguments; uses no network.
[[nodiscard]] QString getGinger(const QString &text, const QString &locale);

/// Reads the top level of a reply. The list is always empty. A part that is not a chunk is reported and ends
/// the reading. Fails with 5011 if the reply holds the word "exception".
[[nodiscard]] CSpellingErrors parseGinger(MessageBoxes &boxes, const QString &reply, const QString &text);

/// Removes the chunk in brackets at the front of `source` and returns its contents, with its closing bracket
/// and one more character if there is one. A source that doesn't start with an opening bracket is reported
/// and stays as it is; the result is then empty.
[[nodiscard]] QString getChunk(MessageBoxes &boxes, QString &source);

/// The text between the first two double quotes, to the end if there is only one; empty without any.
[[nodiscard]] QString getJsonKey(const QString &chunk);

/// Always the empty string: values are not read.
[[nodiscard]] QString getJsonValue(const QString &chunk);

} // namespace tolvo
