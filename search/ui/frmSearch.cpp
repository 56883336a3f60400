// SPDX-License-Identifier: MIT
#include "search/ui/frmSearch.h"

#include "base/application.h"
#include "platform/report_error.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QShowEvent>
#include <tuple>

namespace tolvo {

frmSearch::frmSearch(CSearch &oSearch, SettingsStore &store, MessageBoxes &boxes, QWidget *parent)
    : QDialog(parent), m_search(oSearch), m_store(store), m_boxes(boxes), m_controls(*this),
      m_lastList(m_controls.cmbSearchText) {
    setObjectName(QStringLiteral("frmSearch"));
    m_form.load(store);
    connectControls();
    connectKeys();
    connectOptions();
    useRole(SearchRole::Search);
    showForm();
}

frmSearch::~frmSearch() {
    // The lists lose the focus as they go, when there is no window left that could remember it.
    for (SearchListEdit *list : m_controls.textLists())
        list->disconnect(this);
}

void frmSearch::setSearchText(const QString &text) {
    m_controls.cmbSearchText->setEditText(text);
}

void frmSearch::setSpecialChars(bool on) {
    m_form.request.specialChars = on;
    applyRules();
}

void frmSearch::setDirection(SearchDirection direction) {
    m_form.request.direction = direction;
    applyRules();
}

void frmSearch::expandDialog() {
    if (!m_form.expanded)
        toggleMore();
}

void frmSearch::toggleMore() {
    m_form.expanded = !m_form.expanded;
    applyRules();
}

void frmSearch::watch(const WatchedText &text) {
    m_live =
        std::make_unique<LiveSearch>(m_controls, *this, text, m_store, [this] { return presentRequest(); });
    applyRules();
}

SearchRequest frmSearch::presentRequest() const {
    SearchRequest present = m_form.request;
    present.find = m_controls.cmbSearchText->currentText();
    present.replace = m_controls.cmbReplaceText->currentText();
    return present;
}

void frmSearch::showEvent(QShowEvent *event) {
    if (onShow && !event->spontaneous())
        onShow();
    QDialog::showEvent(event);
}

void frmSearch::showDialog(bool bReplace) {
    showRole(bReplace ? SearchRole::Replace : SearchRole::Search);
}

void frmSearch::showCopyMatches() {
    showRole(SearchRole::CopyMatches);
}

void frmSearch::showRole(SearchRole role) {
    useRole(role);
    showAgain();
}

void frmSearch::showAgain() {
    show();
    raise();
    activateWindow();
    m_controls.cmbSearchText->begin();
}

bool frmSearch::getSettings(QString &settings, SearchRole role) {
    hide();
    readTexts();
    const auto copyOfUser = std::pair(m_form.copyForm, m_form.copyInPlace);
    m_form.readSettings(settings, role);
    m_collecting = true;
    // What is on has to be seen. The user's own choice of the layout comes back afterwards.
    const bool wasExpanded = m_form.expanded;
    m_form.expanded = wasExpanded || m_form.isOnUnseen();
    useRole(role);
    showForm();
    m_controls.cmbSearchText->begin();
    const bool confirmed = exec() == QDialog::Accepted;
    m_collecting = false;
    m_form.expanded = wasExpanded;
    useRole(role);
    readTexts();
    if (confirmed)
        settings = m_form.settings(role);
    // A copy of the user's own goes on as it was used last.
    std::tie(m_form.copyForm, m_form.copyInPlace) = copyOfUser;
    m_controls.copyPart->show(m_form.copyForm, m_form.copyInPlace);
    return confirmed;
}

QComboBox &frmSearch::listOf(SearchText text) const {
    switch (text) {
    case SearchText::Replace:
        return *m_controls.cmbReplaceText;
    case SearchText::Form:
        return *m_controls.copyPart->cmbForm;
    case SearchText::DecimalSep:
        return *m_controls.cmbDecimalSep;
    case SearchText::GroupingSep:
        return *m_controls.cmbThousandsSep;
    case SearchText::Find:
        break;
    }
    return *m_controls.cmbSearchText;
}

void frmSearch::accept() {
    readTexts();
    const auto unkept = m_form.unkeptText(m_role);
    if (!unkept) {
        QDialog::accept();
        return;
    }
    m_boxes.show({.text = unkept->message});
    if (unkept->needsSpecialChars)
        expandDialog();
    QComboBox &list = listOf(unkept->text);
    list.setFocus();
    list.lineEdit()->selectAll();
}

/// Every command first remembers the texts, and gives the focus back to the list that had it.
void frmSearch::run(const std::function<void()> &command) {
    readTexts();
    if (!m_form.request.find.isEmpty()) {
        m_form.rememberTexts();
        m_controls.cmbReplaceText->show(m_form.recentReplaces, m_form.request.replace);
        m_controls.cmbSearchText->show(m_form.recentFinds, m_form.request.find);
    }
    const bool wasActive = isActiveWindow() && (isWindow() || isAncestorOf(QApplication::focusWidget()));
    command();
    if (onSearched)
        onSearched();
    // Under the list of results the window manager may have chosen another window.
    if (wasActive)
        activateWindow();
    if (wasActive || isWindow())
        resumeList();
}

void frmSearch::cmdSearch_Click() {
    run([this] { m_search.run(SearchVerb::Search, m_form.request); });
}

void frmSearch::cmdReplace_Click() {
    run([this] { m_search.run(SearchVerb::Replace, m_form.request); });
}

void frmSearch::cmdReplaceAll_Click() {
    const bool replaces = m_role == SearchRole::Replace;
    run([=, this] { m_search.run(replaces ? SearchVerb::ReplaceAll : SearchVerb::FindAll, m_form.request); });
}

/// The first click shows what there is to choose.
void frmSearch::cmdCopyMatches_Click() {
    if (m_role != SearchRole::CopyMatches)
        return showCopyMatches();
    run([this] {
        m_form.saveCopy(m_store);
        if (onCopyMatches)
            onCopyMatches(m_form.matchCopy());
    });
}

void frmSearch::swop() {
    const QString find = m_controls.cmbSearchText->currentText();
    m_controls.cmbSearchText->setEditText(m_controls.cmbReplaceText->currentText());
    m_controls.cmbReplaceText->setEditText(find);
    resumeList();
}

void frmSearch::ConvertToRegExp() {
    if (m_form.request.mode != SearchMode::Wildcard)
        return;
    reportFailures(m_boxes, QStringLiteral("frmSearch"), QStringLiteral("ConvertToRegExp"), [this] {
        const SearchRequest wildcards = request();
        setSearchText(m_search.translateWildcardsToRegExp(wildcards.find, wildcards.specialChars,
                                                          wildcards.wildcardOptions()));
        m_form.request.mode = SearchMode::RegularExpression;
        applyRules();
    });
}

SearchRequest frmSearch::request() {
    readTexts();
    return m_form.request;
}

void frmSearch::saveState() {
    readTexts();
    m_form.save(m_store);
}

} // namespace tolvo
