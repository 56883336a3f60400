// SPDX-License-Identifier: MIT
// After the Deadline: a web service that answers in XML. It tells phrases and the word before them, not where
// they are, and its answer is sieved through the local dictionary.
#pragma once

#include "spelling/hunspell_provider.h"
#include "spelling/spelling_provider.h"
#include "spelling/spelling_services.h"

#include <QByteArray>
#include <QDomDocument>
#include <QString>
#include <optional>

namespace tolvo {

class cTextMethods;

/// Provider 2.
class AfterTheDeadline final : public SpellingProvider {
  public:
    AfterTheDeadline(const SpellingServices &services, const cTextMethods &textMethods,
                     LocalDictionary &dictionary)
        : m_services(services), m_textMethods(textMethods), m_dictionary(dictionary) {}

    /// Asks the service, then adds what the local dictionary finds between its errors. Nothing if no answer
    /// came; fails with 5012 for any HTTP status but 200, with CheckCancelled if the user ended the request.
    [[nodiscard]] std::optional<CSpellingErrors> check(const QString &text) override;

    /// The errors of a reply that have a place in the text and pass the local dictionary.
    [[nodiscard]] CSpellingErrors parseAtD(const QDomDocument &document, const QString &text);

  private:
    [[nodiscard]] std::optional<QDomDocument> getAtD(const QString &text);
    void merge(CSpellingErrors &errors, const QString &text);

    const SpellingServices &m_services;
    const cTextMethods &m_textMethods;
    LocalDictionary &m_dictionary;
};

/// The address of a request: endpoint, path, a key with 32 digits drawn anew each time, the percent-encoded
/// text.
[[nodiscard]] QByteArray atdRequest(const QString &endpoint, const QString &preparedText);

/// The document of a reply. Empty for what is no XML, and for what the service never sends and could take
/// for ever: a document type of its own, many nested levels, tags with many attributes.
[[nodiscard]] QDomDocument atdDocument(const QByteArray &reply);

} // namespace tolvo
