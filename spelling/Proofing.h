// SPDX-License-Identifier: MIT
// The entry to every spelling and grammar check: CheckSpelling and CheckGrammar.
#pragma once

#include "spelling/spelling_services.h"
#include "text/text_host.h"

#include <QString>

namespace tolvo {

class cTextMethods;

/// The session around a check: where the check shows its status, and the text engine it uses.
class ProofingHost : public TextHost {
  public:
    /// Lets pending window events run.
    virtual void processEvents() {}
    [[nodiscard]] virtual const cTextMethods &textMethods() const = 0;
};

/// Shows the walk through the errors: dlgSpelling on the desktop, a script in the tests. tolvo-pipe has none.
class SpellingWalk {
  public:
    virtual ~SpellingWalk() = default;
    /// Checks `text`, whose lines end in CR alone, and lets the user walk through the errors. True if `text`
    /// holds the corrected text; false if no error was found or the user cancelled.
    virtual bool CheckSpelling(ProofingHost &host, QString &text, int LangID, bool grammar) = 0;
};

/// Runs one check: the walk through the errors, or Word's own dialog. A failure in it is reported as
/// Proofing's.
class Proofing {
  public:
    Proofing(const SpellingServices &services, ProofingHost &host, SpellingWalk &walk);

    /// Check a text with CR LF line ends and correct it in place; a lone CR comes back as CR LF. False if a
    /// failure was reported or the user ended a request: the text then stays as it was.
    bool CheckSpelling(QString &text, int LangID);
    bool CheckGrammar(QString &text, int LangID);

  private:
    bool proof(QString &text, int LangID, bool grammar);
    void checkInWord(QString &text, int LangID, bool grammar);

    const SpellingServices &m_services;
    ProofingHost &m_host;
    SpellingWalk &m_walk;
};

} // namespace tolvo
