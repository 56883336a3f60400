// SPDX-License-Identifier: MIT
#include "spelling/spelling_walk.h"

#include "base/code_page.h"
#include "base/numbers.h"
#include "preferences/settings_keys.h"
#include "spelling/error_order.h"
#include "spelling/language_rows.h"
#include "spelling/spelling_provider.h"
#include "text/cTextMethods.h"

#include <utility>

namespace tolvo {

namespace {

QString repeatedWord() {
    return QStringLiteral("(Repeated word)");
}

} // namespace

ErrorWalk::ErrorWalk(const SpellingServices &services, ProofingHost &host)
    : m_services(services), m_host(host) {
}

ErrorWalk::~ErrorWalk() = default;

bool ErrorWalk::start(const QString &text, int LangID, bool grammar) {
    m_over = m_cancelled = false;
    oIgnore.clear();
    oChangeAll.clear();
    m_undo.clear();
    m_controls = {};
    m_controls.caption = QStringLiteral("Spelling and Grammar - ") + languageInTitle(m_services, LangID);
    m_places.clear();
    m_host.setStatus(QStringLiteral("Checking. Please wait..."));
    m_host.processEvents();

    oSpelling = std::make_unique<CSpelling>(m_services, m_host.textMethods());
    const int provider = get(m_services.store, providerForSpellingDialog);
    QString localeName = provider == providerType::word ? QString() : chosenLocale(m_services, LangID);
    oSpelling->init(provider, LangID, localeName);
    for (const QString &word : std::as_const(m_runWords))
        oSpelling->addForRun(word);
    if (!oSpelling->Spell(text, grammar)) {
        end();
        return false;
    }
    takeErrors();
    m_text = MarkedText(text);
    ShowNextError(true);
    m_host.setStatus({});
    return true;
}

void ErrorWalk::end() {
    m_over = true;
    m_ahead.reset();
    m_undo.clear();
    oErrors = {};
    oSpelling.reset();
}

/// Takes the provider's list over and goes to its front.
void ErrorWalk::takeErrors() {
    oErrors = innerFirst(oSpelling->SpellingErrors());
    m_current = 1;
    m_places.startAfresh();
    m_lookedAt = 0;
    if (m_ahead)
        m_ahead->goOn();
}

void ErrorWalk::lookAhead(BackgroundWorker &worker) {
    const std::shared_ptr<HunspellEngine> engine = oSpelling ? oSpelling->engine() : nullptr;
    if (!engine)
        return;
    m_ahead = std::make_unique<SuggestionsAhead>(worker, engine, [this] { return wordAhead(); });
    m_ahead->goOn();
}

/// The next word whose suggestions the user may see; empty if there is none.
QString ErrorWalk::wordAhead() {
    for (m_lookedAt = qMax(m_lookedAt, m_current) + 1; m_lookedAt <= oErrors.Count(); ++m_lookedAt) {
        const CSpellingError &error = oErrors.Item(m_lookedAt);
        const QString &word = error.ErrorText();
        if (error.errorType == spellingErrorType::notInDictionary &&
            !oSpelling->engine()->hasSuggestions(word) &&
            oIgnore.value(toUpper(word)) != QStringLiteral("all"))
            return word;
    }
    return {};
}

/// Where the current error stands in the text.
ShiftedPlace ErrorWalk::place() const {
    if (m_current > oErrors.Count())
        return {m_caret, 0};
    const CSpellingError &error = current();
    return m_places.placeOf(error.TextStart(), error.TextEnd())
        .value_or(ShiftedPlace{error.TextStart(), error.length()});
}

void ErrorWalk::ShowNextError(bool useChangeAll) {
    while (m_current <= oErrors.Count()) {
        const CSpellingError &error = current();
        setMistake(error.ErrorText());
        if (!passOver(error, useChangeAll)) {
            m_controls.lstSuggestions.clear();
            m_controls.selectedSuggestion = -1;
            if (error.SpellingSuggestions().Count() > 0)
                offerSuggestions(error);
            else
                offerNothing(error);
            showPlace();
            return;
        }
        ++m_current;
        useChangeAll = true;
    }
    m_over = true;
}

/// Whether the error is handled without the user: its word is ignored or changed everywhere, or it went with
/// the change of another one.
bool ErrorWalk::passOver(const CSpellingError &error, bool useChangeAll) {
    if (!m_places.placeOf(error.TextStart(), error.TextEnd()))
        return true;
    const QString word = toUpper(error.ErrorText());
    if (oIgnore.value(word) == QStringLiteral("all"))
        return true;
    markError(error);
    const int type = error.errorType + 1;
    m_controls.labErrorType = aSpellErrorTypes.at(static_cast<std::size_t>(type)).toString() + u':';
    m_controls.labErrorDescription = error.Description;
    if (!useChangeAll || !oChangeAll.contains(word))
        return false;
    const QString replacement = oChangeAll.value(word);
    setCorrection(m_smartReplace ? m_host.textMethods().smartMatch(error.ErrorText(), replacement)
                                 : replacement);
    ReplaceCurrent();
    return true;
}

/// Marks the error in the text, unless it is at the very start. The caret goes to the place that the error
/// had before any change: that is where the walk resumes after the check of a replacement.
void ErrorWalk::markError(const CSpellingError &error) {
    if (error.TextStart() < 1) {
        m_caret = 1;
        return;
    }
    m_text.mark(errorStart(), errorLength(), Mark::Mistake);
    m_caret = error.TextStart();
}

void ErrorWalk::showPlace() {
    const qsizetype line = m_text.text().left(qMax<qsizetype>(errorStart(), 0)).count(u'\r') + 1;
    m_controls.labPlace =
        QStringLiteral("%1 of %2, line %3")
            .arg(groupedNumber(m_current), groupedNumber(oErrors.Count()), groupedNumber(line));
}

void ErrorWalk::offerNothing(const CSpellingError &error) {
    m_controls.lstSuggestionsEnabled = false;
    setCorrection(error.ErrorText());
    setChangeEnabled(false);
    QStringList &list = m_controls.lstSuggestions;
    if (equalsIgnoringCase(PreviousWord(errorStart()), error.ErrorText())) {
        list += repeatedWord();
        m_controls.cmdDeleteEnabled = true;
    } else if (!error.Description.isEmpty() && error.errorType != spellingErrorType::notInDictionary) {
        list += error.Description;
    } else if (oSpelling->ProviderType() != providerType::afterTheDeadline) {
        list += QStringLiteral("(No spelling suggestions)");
    } else {
        list = oSpelling->hunspellSuggest(error.ErrorText())->texts();
        if (list.isEmpty())
            return;
        m_controls.lstSuggestionsEnabled = true;
        select(0);
    }
}

void ErrorWalk::offerSuggestions(const CSpellingError &error) {
    const CSpellingSuggestions &suggestions = error.SpellingSuggestions();
    QStringList &list = m_controls.lstSuggestions;
    m_controls.lstSuggestionsEnabled = true;
    list = suggestions.texts();
    if (oSpelling->ProviderType() == providerType::afterTheDeadline &&
        error.errorType == spellingErrorType::notInDictionary) {
        oMoreSuggestions.clear();
        for (const QString &suggestion : oSpelling->hunspellSuggest(error.ErrorText())->texts()) {
            if (!suggestions.holds(suggestion))
                oMoreSuggestions += suggestion;
        }
        if (!oMoreSuggestions.isEmpty())
            list += moreSuggestionsRow();
    }
    select(0);
}

/// Selects a row and takes it as the correction.
void ErrorWalk::select(int row) {
    m_controls.selectedSuggestion = row;
    setCorrection(m_controls.lstSuggestions.at(row));
    setChangeEnabled(true);
}

void ErrorWalk::setMistake(const QString &text) {
    if (text == m_controls.labMistake)
        return;
    m_controls.labMistake = text;
    setCorrection(text);
}

void ErrorWalk::setCorrection(const QString &text) {
    if (text == m_controls.txtCorrection)
        return;
    m_controls.txtCorrection = text;
    const bool differs = text != m_controls.labMistake;
    setChangeEnabled(differs);
    if (differs)
        m_controls.cmdDeleteEnabled = false;
    else if (m_controls.lstSuggestions.value(0) == repeatedWord())
        m_controls.cmdDeleteEnabled = true;
}

void ErrorWalk::setChangeEnabled(bool enabled) {
    m_controls.cmdChangeEnabled = m_controls.cmdChangeAllEnabled = enabled;
}

QString ErrorWalk::PreviousWord(qsizetype position) const {
    const QString &text = m_text.text();
    qsizetype end = qMin(position, text.size());
    while (end > 0 && text[end - 1] == u' ')
        --end;
    qsizetype first = end;
    while (first > 0 && text[first - 1] != u' ')
        --first;
    return text.mid(first, end - first);
}

void ErrorWalk::ReplaceCurrent() {
    PushUndo();
    ReplaceAt(errorStart(), errorLength(), m_controls.txtCorrection);
}

void ErrorWalk::ReplaceAt(qsizetype start, qsizetype length, const QString &replacement) {
    m_text.replace(start, length, replacement, Mark::Replaced);
    m_places.note(current().TextStart(), current().TextEnd(), replacement.size() - length);
}

void ErrorWalk::PushUndo() {
    m_undo.append(UndoRecord{m_text.state(), m_current, m_places.state(), oErrors, oChangeAll});
    m_controls.cmdUndoEnabled = true;
}

} // namespace tolvo
