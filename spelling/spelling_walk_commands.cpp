// SPDX-License-Identifier: MIT
// What the buttons of the checking dialog and its list do.
#include "spelling/spelling_walk.h"

#include "base/code_page.h"
#include "base/failure.h"
#include "base/numbers.h"
#include "platform/message_box.h"

#include <utility>

namespace tolvo {

namespace {

QString omitRow() {
    return QStringLiteral("<Omit>");
}

} // namespace

void ErrorWalk::goOn() {
    ++m_current;
    ShowNextError(true);
}

void ErrorWalk::replaceAndGoOn() {
    ReplaceCurrent();
    goOn();
}

bool ErrorWalk::isOmitted(const QString &text) const {
    return text == omitRow() || text.isEmpty();
}

void ErrorWalk::cmdIgnore() {
    if (m_over)
        return;
    const CSpellingError &error = current();
    if (error.TextStart() > 0)
        m_text.mark(errorStart(), errorLength(), Mark::Plain);
    const QString word = toUpper(error.ErrorText());
    if (!oIgnore.contains(word))
        oIgnore.insert(word, QStringLiteral("one"));
    goOn();
}

void ErrorWalk::cmdIgnoreAll() {
    if (m_over)
        return;
    oIgnore.insert(toUpper(current().ErrorText()), QStringLiteral("all"));
    cmdIgnore();
}

void ErrorWalk::cmdAddToDic() {
    if (m_over)
        return;
    oSpelling->AddToCustomDic(m_controls.labMistake);
    cmdIgnoreAll();
}

void ErrorWalk::cmdAddForRun() {
    if (m_over)
        return;
    m_runWords += m_controls.labMistake;
    oSpelling->addForRun(m_controls.labMistake);
    cmdIgnoreAll();
}

void ErrorWalk::cmdChange() {
    if (m_over)
        return;
    const QString word = m_controls.txtCorrection;
    if (isOmitted(word))
        cmdDelete();
    else if (oSpelling->Spell(word, false))
        replaceAndCheckAgain();
    else
        replaceAndGoOn();
}

void ErrorWalk::cmdChangeAll() {
    if (m_over)
        return;
    const QString replacement = m_controls.txtCorrection;
    if (replacement == omitRow()) {
        cmdDelete();
        return;
    }
    const QString word = current().ErrorText();
    const bool misspelt = oSpelling->Spell(replacement, false);
    if (misspelt) {
        const Box question{.text = u'\'' + replacement + QStringLiteral("' may contain misspellings.\r\n") +
                                   QStringLiteral("Do you really want to change all instances of '") + word +
                                   QStringLiteral("'?"),
                           .icon = BoxIcon::Question,
                           .buttons = BoxButtons::YesNo};
        if (m_services.boxes.show(question) != BoxAnswer::Yes)
            return;
    }
    oChangeAll.insert(toUpper(word), replacement);
    if (misspelt)
        replaceAndCheckAgain();
    else
        replaceAndGoOn();
}

/// For a replacement that the provider doesn't accept: the whole corrected text is checked again, and the
/// walk restarts at its first error, unless that is after the place of the caret.
void ErrorWalk::replaceAndCheckAgain() {
    const qsizetype place = m_caret;
    ReplaceCurrent();
    bool found = false;
    try {
        found = oSpelling->Spell(m_text.text());
    } catch (const Failure &) {
        goOn(); // the replacement stands; its error must not be replaced again
        throw;
    }
    if (!found) {
        goOn();
        return;
    }
    takeErrors();
    while (m_current <= oErrors.Count() && current().TextStart() > place)
        ++m_current;
    ShowNextError(true);
}

void ErrorWalk::cmdDelete() {
    if (m_over)
        return;
    PushUndo();
    m_controls.cmdDeleteEnabled = false;
    const qsizetype start = errorStart();
    const QString &text = m_text.text();
    qsizetype end = start + errorLength();
    while (end < text.size() && text[end] == u' ')
        ++end;
    ReplaceAt(start, end - start, {});
    goOn();
}

void ErrorWalk::cmdUndo() {
    if (m_over || m_undo.isEmpty())
        return;
    const UndoRecord record = m_undo.takeLast();
    m_text.restore(record.text);
    m_current = record.current;
    m_places.restore(record.places);
    oErrors = record.errors;
    oChangeAll = record.changeAll;
    m_controls.cmdUndoEnabled = !m_undo.isEmpty();
    ShowNextError(false);
}

void ErrorWalk::cmdCancel() {
    m_cancelled = true;
    m_over = true;
}

void ErrorWalk::leave() {
    const qsizetype lost = changes();
    const QString what =
        lost == 1 ? QStringLiteral("the change") : QStringLiteral("the %1 changes").arg(groupedNumber(lost));
    const Box question{
        .text = QStringLiteral("Do you really want to throw away %1 that you have made?").arg(what),
        .icon = BoxIcon::Question,
        .buttons = BoxButtons::YesNo};
    if (lost == 0 || m_services.boxes.show(question) == BoxAnswer::Yes)
        cmdCancel();
}

void ErrorWalk::clickSuggestion(int row) {
    QStringList &list = m_controls.lstSuggestions;
    if (row < 0 || row >= list.size())
        return;
    m_controls.selectedSuggestion = row;
    m_justExpanded = list[row] == moreSuggestionsRow();
    if (!m_justExpanded) {
        setCorrection(list[row]);
        return;
    }
    list.removeAt(row);
    for (const QString &suggestion : std::as_const(oMoreSuggestions))
        list.insert(row++, suggestion);
    oMoreSuggestions.clear();
}

void ErrorWalk::doubleClickSuggestion(int row) {
    if (m_over || row < 0 || row >= m_controls.lstSuggestions.size())
        return;
    // The first click of a double click on "<More...>" has put a suggestion there that the user hasn't seen.
    if (std::exchange(m_justExpanded, false))
        return;
    if (m_controls.lstSuggestions[row] == moreSuggestionsRow()) {
        clickSuggestion(row);
        return;
    }
    setCorrection(m_controls.lstSuggestions[row]);
    if (isOmitted(m_controls.txtCorrection))
        cmdDelete();
    else
        replaceAndGoOn();
}

} // namespace tolvo
