// SPDX-License-Identifier: MIT
// The user's walk through the errors of a text: the rules of the checking dialog, without its window. Members
// that are named after the dialog's controls say what these show.
#pragma once

#include "spelling/CSpelling.h"
#include "spelling/Proofing.h"
#include "spelling/marked_text.h"
#include "spelling/shifted_places.h"
#include "spelling/spelling_services.h"
#include "spelling/suggestions_ahead.h"

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>
#include <memory>

namespace tolvo {

/// The row of the list that stands for suggestions not shown yet.
[[nodiscard]] inline QString moreSuggestionsRow() {
    return QStringLiteral("<More...>");
}

/// What the controls show, and which of them are enabled.
struct WalkControls {
    QString caption;
    QString labErrorType = QStringLiteral("Not in dictionary:");
    QString labMistake;
    QString labErrorDescription;
    QString labPlace; ///< "3 of 41, line 12"
    QStringList lstSuggestions;
    int selectedSuggestion = -1; ///< index from 0 of the selected row, -1 for none
    bool lstSuggestionsEnabled = false;
    QString txtCorrection;
    bool cmdChangeEnabled = false;
    bool cmdChangeAllEnabled = false;
    bool cmdDeleteEnabled = false;
    bool cmdUndoEnabled = false;
};

/// One walk. Each command acts on the current error and moves on to the next one.
class ErrorWalk {
  public:
    ErrorWalk(const SpellingServices &services, ProofingHost &host);
    ~ErrorWalk();

    /// Checks the text, whose lines end in CR alone, and goes to its first error. False if there is none, and
    /// so nothing to show.
    bool start(const QString &text, int LangID, bool grammar);
    /// From here on, finds the suggestions of the words ahead in the background, so that no step waits for
    /// them. To be called after start().
    void lookAhead(BackgroundWorker &worker);
    /// Releases the provider.
    void end();

    [[nodiscard]] const WalkControls &controls() const { return m_controls; }
    [[nodiscard]] const MarkedText &rtbText() const { return m_text; }
    /// The caret, and the place of the current error in rtbText.
    [[nodiscard]] qsizetype caret() const { return m_caret; }
    [[nodiscard]] qsizetype errorStart() const { return place().start; }
    [[nodiscard]] qsizetype errorLength() const { return place().length; }
    /// True once the dialog is to be hidden.
    [[nodiscard]] bool isOver() const { return m_over; }
    [[nodiscard]] bool bCancelled() const { return m_cancelled; }

    /// Words that are known for as long as the program runs; to be set before start(). cmdAddForRun adds to
    /// them.
    void setRunWords(const QStringList &words) { m_runWords = words; }
    [[nodiscard]] const QStringList &runWords() const { return m_runWords; }

    void setSmartReplace(bool ticked) { m_smartReplace = ticked; }
    /// Sets txtCorrection, as the user does by typing.
    void setCorrection(const QString &text);

    void cmdIgnore();
    void cmdIgnoreAll();
    void cmdAddToDic();
    void cmdAddForRun();
    void cmdChange();
    void cmdChangeAll();
    void cmdDelete();
    void cmdUndo();
    void cmdStop() { m_over = true; }
    void cmdCancel();
    /// Cancels as Esc and the close box do: after a question if there are changes to be lost.
    void leave();
    /// The number of changes that Undo can take back.
    [[nodiscard]] qsizetype changes() const { return m_undo.size(); }
    /// A click on a row, which makes it the correction, and a double click, which also replaces the error by
    /// it without a check. Rows count from 0.
    void clickSuggestion(int row);
    void doubleClickSuggestion(int row);

  private:
    struct UndoRecord {
        qsizetype text; ///< state of the marked text
        qsizetype current;
        ShiftedPlaces::State places;
        CSpellingErrors errors;
        QHash<QString, QString> changeAll;
    };

    [[nodiscard]] ShiftedPlace place() const;
    void takeErrors();
    [[nodiscard]] QString wordAhead();
    void ShowNextError(bool useChangeAll);
    [[nodiscard]] bool passOver(const CSpellingError &error, bool useChangeAll);
    void markError(const CSpellingError &error);
    void showPlace();
    void offerSuggestions(const CSpellingError &error);
    void offerNothing(const CSpellingError &error);
    void select(int row);
    void setMistake(const QString &text);
    void setChangeEnabled(bool enabled);
    [[nodiscard]] QString PreviousWord(qsizetype position) const;
    void ReplaceCurrent();
    void ReplaceAt(qsizetype start, qsizetype length, const QString &replacement);
    void PushUndo();
    void goOn();
    void replaceAndGoOn();
    void replaceAndCheckAgain();
    [[nodiscard]] bool isOmitted(const QString &text) const;
    [[nodiscard]] const CSpellingError &current() const { return oErrors.Item(m_current); }

    const SpellingServices &m_services;
    ProofingHost &m_host;
    std::unique_ptr<CSpelling> oSpelling;
    CSpellingErrors oErrors;
    qsizetype m_current = 1;  ///< index of the current error, from 1
    qsizetype m_lookedAt = 0; ///< index of the last error whose suggestions have been looked for ahead
    ShiftedPlaces m_places;   ///< iOffset
    QHash<QString, QString> oIgnore;
    QHash<QString, QString> oChangeAll;
    QStringList oMoreSuggestions;
    QStringList m_runWords;
    QList<UndoRecord> m_undo;
    MarkedText m_text;
    WalkControls m_controls;
    qsizetype m_caret = 0;
    bool m_smartReplace = false;
    bool m_justExpanded = false; ///< the last click was on "<More...>"
    bool m_over = true;
    bool m_cancelled = false;
    std::unique_ptr<SuggestionsAhead> m_ahead; ///< goes before what it looks at
};

} // namespace tolvo
