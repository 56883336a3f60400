// SPDX-License-Identifier: MIT
// Ginger: a web service that answers in JSONP. The provider is half-built and stays so: it sends nothing,
// reads a fixed sample reply to its top level, and finds no errors in any text.
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

    [[nodiscard]] std::optional<CSpellingErrors> check(const QString &text) override;

  private:
    const SpellingServices &m_services;
    QString m_locale;
};

/// The sample reply, whatever the arguments are; no network is touched.
[[nodiscard]] QString getGinger(const QString &text, const QString &locale);

/// Walks the top level of a reply. The list is always empty. Fails with 5011 if the reply holds the word
/// "exception".
[[nodiscard]] CSpellingErrors parseGinger(MessageBoxes &boxes, const QString &reply, const QString &text);

/// Cuts the chunk in brackets off the front of `source` and returns what stands inside it, with its closing
/// bracket and one more character if there is one. A source that starts with no opening bracket is reported,
/// gives the empty string and stays as it is.
[[nodiscard]] QString getChunk(MessageBoxes &boxes, QString &source);

/// What stands between the first two double quotes.
[[nodiscard]] QString getJsonKey(const QString &chunk);

/// Values are not read: this is always the empty string.
[[nodiscard]] QString getJsonValue(const QString &chunk);

} // namespace tolvo
