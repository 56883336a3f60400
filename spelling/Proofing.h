// SPDX-License-Identifier: MIT
// The entry to every spelling and grammar check: CheckSpelling and CheckGrammar.
#pragma once

#include <QString>
#include <memory>

namespace tolvo {

class HttpClient;
class MessageBoxes;
class SettingsStore;
class cTextMethods;
class CSpelling;

/// Shows the walk through the errors. The desktop does it with dlgSpelling; tests script it. tolvo-pipe has
/// none.
class SpellingWalk {
  public:
    virtual ~SpellingWalk() = default;
    /// Checks `text` (CR alone ends a line) and lets the user walk the errors. True unless the user cancelled
    /// or no error was found; then `text` holds the corrected text.
    virtual bool CheckSpelling(QString &text, int LangID, bool grammar) = 0;
};

/// Shows the language list. -2: cancelled.
class LanguageChooser {
  public:
    virtual ~LanguageChooser() = default;
    /// `LangID` -2 means the stored language; `save` stores the choice.
    virtual int GetLangID(int LangID, bool save) = 0;
};

/// What the check says while it works.
class ProofingHost {
  public:
    virtual ~ProofingHost() = default;
    virtual void setStatus(const QString &text) = 0;
    /// Lets pending window events run.
    virtual void processEvents() {}
};

class Proofing {
  public:
    Proofing(SettingsStore &store, MessageBoxes &boxes, ProofingHost &host, SpellingWalk &walk);
    ~Proofing();

    /// Both take and give CR LF text. False if a failure was caught (and shown).
    bool CheckSpelling(QString &text, int LangID);
    bool CheckGrammar(QString &text, int LangID);

  private:
    bool proof(QString &text, int LangID, bool grammar);

    SettingsStore &m_store;
    MessageBoxes &m_boxes;
    ProofingHost &m_host;
    SpellingWalk &m_walk;
};

} // namespace tolvo
