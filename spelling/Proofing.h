// SPDX-License-Identifier: MIT
// The entry to every spelling and grammar check: CheckSpelling and CheckGrammar.
#pragma once

#include "spelling/spelling_services.h"

#include <QString>

namespace tolvo {

class cTextMethods;

/// The session around a check: what the check says while it works, and the text engine it borrows.
class ProofingHost {
  public:
    virtual ~ProofingHost() = default;
    virtual void setStatus(const QString &text) = 0;
    /// Lets pending window events run.
    virtual void processEvents() {}
    [[nodiscard]] virtual const cTextMethods &textMethods() const = 0;
};

/// Shows the walk through the errors. The desktop does it with dlgSpelling; tests script it. tolvo-pipe has
/// none.
class SpellingWalk {
  public:
    virtual ~SpellingWalk() = default;
    /// Checks `text` (CR alone ends a line) and lets the user walk the errors. True unless the user cancelled
    /// or no error was found; then `text` holds the corrected text.
    virtual bool CheckSpelling(ProofingHost &host, QString &text, int LangID, bool grammar) = 0;
};

/// Shows the language list. -2: cancelled.
class LanguageChooser {
  public:
    virtual ~LanguageChooser() = default;
    /// `LangID` -2 means the stored language; `save` stores the choice.
    virtual int GetLangID(int LangID, bool save) = 0;
};

class Proofing {
  public:
    Proofing(const SpellingServices &services, ProofingHost &host, SpellingWalk &walk);

    /// Both take and give CR LF text; a lone CR comes back as CR LF. False if a failure was caught (and
    /// shown), or the user ended a request: the text is then as it was.
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
