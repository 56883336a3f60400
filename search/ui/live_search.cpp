// SPDX-License-Identifier: MIT
#include "search/ui/live_search.h"

#include "preferences/settings_keys.h"
#include "preferences/settings_store.h"
#include "search/ui/replacement_list.h"
#include "search/ui/search_controls.h"
#include "widgets/ElidedLabel.h"
#include "widgets/announce.h"

#include <QCheckBox>
#include <QDialog>
#include <QEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <limits>

namespace tolvo {

namespace {

using Span = RegularExpression::Span;

// Milliseconds
constexpr int pauseInTyping = 50;
constexpr int patience = 250; ///< so long the marks of the question before may stand
constexpr int pauseInScrolling = 30;

Stretch stretchOf(Span place) {
    return {static_cast<int>(place.start), static_cast<int>(place.length)};
}

/// All matches in the order of the text; one without length is a thin upright.
QList<Stretch> stretchesOf(const FoundMatches &found) {
    QList<Stretch> marks;
    marks.reserve(found.places.size() + found.emptyAt.size());
    auto empty = found.emptyAt.begin();
    const auto addEmpty = [&](qsizetype end) {
        for (; empty != found.emptyAt.end() && *empty < end; ++empty)
            marks += {static_cast<int>(*empty), 0};
    };
    for (const Span place : found.places) {
        addEmpty(place.start);
        marks += stretchOf(place);
    }
    addEmpty(std::numeric_limits<qsizetype>::max());
    return marks;
}

void startsOnce(QTimer &timer, int milliseconds) {
    timer.setSingleShot(true);
    timer.setInterval(milliseconds);
}

} // namespace

LiveSearch::LiveSearch(SearchControls &controls, QDialog &window, const WatchedText &text,
                       SettingsStore &store, std::function<SearchRequest()> request)
    : m_controls(controls), m_window(window), m_text(text), m_store(store), m_request(std::move(request)),
      m_search(text.worker), m_preview(text.worker), m_mistakeInFind(*controls.cmbSearchText->lineEdit()),
      m_mistakeInReplacement(*controls.cmbReplaceText->lineEdit()) {
    startsOnce(m_pause, pauseInTyping);
    startsOnce(m_late, patience);
    startsOnce(m_view, pauseInScrolling);
    connect(&m_pause, &QTimer::timeout, this, qOverload<>(&LiveSearch::ask));
    connect(&m_view, &QTimer::timeout, this, &LiveSearch::preview);
    connect(&m_late, &QTimer::timeout, this, [this] {
        clearMarks();
        say(QStringLiteral("searching..."));
    });
    window.installEventFilter(this);
    followControls();
    followText();
}

LiveSearch::~LiveSearch() {
    clearMarks();
}

void LiveSearch::followControls() {
    for (SearchListEdit *list : {m_controls.cmbSearchText, m_controls.cmbReplaceText})
        connect(list, &QComboBox::editTextChanged, this, &LiveSearch::askSoon);
    for (QComboBox *list : {m_controls.cmbDecimalSep, m_controls.cmbThousandsSep})
        connect(list, &QComboBox::editTextChanged, this, &LiveSearch::askSoon);
    m_controls.chkMarkMatches->setChecked(get(m_store, settingKeys.view.matches));
    connect(m_controls.chkMarkMatches, &QCheckBox::toggled, this, [this](bool on) {
        set(m_store, settingKeys.view.matches, on);
        showMatches();
    });
    m_controls.lstReplacements->onChosen = [this](Span place) { choose(place); };
}

void LiveSearch::followText() {
    for (PlainTextBox *box : m_text.boxes) {
        connect(box, &QPlainTextEdit::textChanged, this, &LiveSearch::textChanged);
        connect(box, &QPlainTextEdit::selectionChanged, this, &LiveSearch::showPlace);
        connect(box, &QPlainTextEdit::cursorPositionChanged, this, &LiveSearch::showPlace);
        connect(box->verticalScrollBar(), &QScrollBar::valueChanged, this, &LiveSearch::previewSoon);
        connect(box->verticalScrollBar(), &QScrollBar::rangeChanged, this, &LiveSearch::previewSoon);
    }
}

void LiveSearch::ask(Role role) {
    m_role = role;
    askSoon();
}

/// The next key ends a search that is under way.
void LiveSearch::askSoon() {
    m_search.cancel();
    m_preview.cancel();
    m_mistakeInFind.mark(-1);
    if (!m_window.isVisible())
        return;
    m_pause.start();
    if (!m_late.isActive())
        m_late.start();
}

void LiveSearch::ask() {
    const PlainTextBox &box = m_text.shown();
    m_question = {.text = m_role == Role::Collecting ? QString() : box.Text(),
                  .request = m_request(),
                  .isReplacing = m_role == Role::Replacing,
                  .capacity = box.capacity()};
    m_search.start([question = m_question](
                       const Cancellation &cancellation) { return liveAnswer(question, cancellation); },
                   [this](const LiveAnswer &found) { answer(found); });
}

void LiveSearch::answer(const LiveAnswer &answer) {
    m_late.stop();
    m_answer = answer;
    showMatches();
    showTrouble(answer.found.troubleAt);
    preview();
}

bool LiveSearch::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() == QEvent::Show)
        askSoon();
    else if (event->type() == QEvent::Hide)
        end();
    return QObject::eventFilter(watched, event);
}

/// No mark stands in a text that it was not made for.
void LiveSearch::textChanged() {
    clearMarks();
    askSoon();
}

void LiveSearch::end() {
    for (QTimer *timer : {&m_pause, &m_late, &m_view})
        timer->stop();
    m_search.cancel();
    m_preview.cancel();
    clearMarks();
    showTrouble(-1);
    m_question = {};
    say({});
}

void LiveSearch::clearMarks() {
    m_answer.reset();
    for (PlainTextBox *box : m_text.boxes) {
        box->setTint(TintLayer::Matches, {});
        box->setTint(TintLayer::CurrentMatch, {});
    }
    m_controls.lstReplacements->showReplacements({}, {});
}

void LiveSearch::showMatches() {
    if (!m_answer)
        return;
    QList<Stretch> marks;
    if (m_controls.chkMarkMatches->isChecked()) {
        marks = stretchesOf(m_answer->found);
    }
    m_text.shown().setTint(TintLayer::Matches, marks);
    showPlace();
}

/// Where the selection stands among the matches.
void LiveSearch::showPlace() {
    if (!m_answer || m_pause.isActive())
        return;
    const qsizetype current = matchAt(m_answer->found.places, selection());
    QList<Stretch> mark;
    if (current >= 0 && m_controls.chkMarkMatches->isChecked())
        mark += stretchOf(m_answer->found.places.at(current));
    m_text.shown().setTint(TintLayer::CurrentMatch, mark);
    if (m_role != Role::Collecting || !m_answer->found.isValid())
        say(answerInWords(*m_answer, m_question.request, selection()));
    else
        say({});
}

/// What is wrong in the two boxes, and what Replace All would do.
void LiveSearch::showTrouble(qsizetype inFind) {
    m_mistakeInFind.mark(inFind);
    const qsizetype inReplacement = m_role == Role::Searching ? -1 : badReplacementAt(m_question.request);
    m_mistakeInReplacement.mark(inReplacement);
    QString words;
    if (inReplacement >= 0)
        words = QStringLiteral("Hexadecimal digits are missing, at character %1").arg(inReplacement + 1);
    else if (m_answer)
        words = forecastInWords(*m_answer);
    if (words == m_controls.labForecast->text())
        return;
    m_controls.labForecast->showText(words);
    m_controls.cmdReplaceAll->setToolTip(words);
    announce(m_controls.labForecast, words);
}

void LiveSearch::say(const QString &words) {
    if (words == m_controls.labAnswer->text())
        return;
    m_controls.labAnswer->showText(words);
    m_controls.cmbSearchText->setAccessibleDescription(words);
    announce(m_controls.labAnswer, words);
}

void LiveSearch::previewSoon() {
    if (m_answer)
        m_view.start();
}

void LiveSearch::preview() {
    ReplacementList &list = *m_controls.lstReplacements;
    m_preview.cancel();
    if (!m_answer || !m_answer->forecast || list.isHidden()) {
        list.showReplacements({}, {});
        return;
    }
    const Stretch seen = m_text.shown().textInSight();
    const QList<Span> places =
        matchesIn(m_answer->found.places, {seen.start, seen.length}, ReplacementList::mostRows);
    m_preview.start(
        [question = m_question, places](const Cancellation &cancellation) {
            return livePreview(question, places, cancellation);
        },
        [this](const QList<PreviewedReplacement> &replacements) {
            m_controls.lstReplacements->showReplacements(m_question.text, replacements);
        });
}

void LiveSearch::choose(Span place) {
    PlainTextBox &box = m_text.shown();
    box.setSelStart(static_cast<int>(place.start));
    box.setSelLength(static_cast<int>(place.length));
}

Span LiveSearch::selection() const {
    const PlainTextBox &box = m_text.shown();
    return {box.SelStart(), box.SelLength()};
}

} // namespace tolvo
