// SPDX-License-Identifier: MIT
// After the Deadline: a web service that answers in XML (https://www.afterthedeadline.com/api.slp). It
// reports phrases and the word before each, but not their places; the local dictionary filters its answer.
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

    /// Asks the service and adds what the local dictionary finds between its errors. Without any errors of
    /// the service the local dictionary checks alone. Nothing if no answer came, which is reported. Fails
    /// with 5012 for any HTTP status but 200, and with CheckCancelled if the user ended the request.
    [[nodiscard]] std::optional<CSpellingErrors> check(const QString &text) override;

    /// The errors of a reply whose phrase is found in the text and which the local dictionary doesn't
    /// overrule.
    [[nodiscard]] CSpellingErrors parseAtD(const QDomDocument &document, const QString &text);

  private:
    [[nodiscard]] std::optional<QDomDocument> getAtD(const QString &text);
    void merge(CSpellingErrors &errors, const QString &text);

    const SpellingServices &m_services;
    const cTextMethods &m_textMethods;
    LocalDictionary &m_dictionary;
};

/// The address of a request: endpoint, path, a key with 32 random digits, the percent-encoded text.
[[nodiscard]] QByteArray atdRequest(const QString &endpoint, const QString &preparedText);

/// The document of a reply. Empty for a reply that is not XML, or that has a document type, deep nesting or
/// long tags: the service sends none of these, and reading them could take very long.
[[nodiscard]] QDomDocument atdDocument(const QByteArray &reply);

} // namespace tolvo
