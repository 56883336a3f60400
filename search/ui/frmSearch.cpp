// SPDX-License-Identifier: MIT
#include "search/ui/frmSearch.h"

#include "base/application.h"
#include "platform/report_error.h"
#include "search/ui/replacement_list.h"
#include "widgets/ElidedLabel.h"
#include "widgets/screen_fit.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QShowEvent>
#include <QSignalBlocker>
#include <QTabBar>
#include <QToolButton>
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

/// Which controls there are: for searching, replacing or copying, for doing it or for collecting settings.
void frmSearch::useRole(SearchRole role) {
    noteSizeOfUser();
    m_role = role;
    const bool replaces = role == SearchRole::Replace;
    const bool copies = role == SearchRole::CopyMatches;
    SearchControls &c = m_controls;
    setWindowTitle(applicationTitle() + (replaces ? QStringLiteral(" Search & Replace")
                                         : copies ? QStringLiteral(" Search - Copy matches")
                                                  : QStringLiteral(" Search")));
    c.cmbReplaceText->setEnabled(replaces);
    c.labReplace->setEnabled(replaces);
    c.cmbReplaceText->setVisible(!copies);
    c.labReplace->setVisible(!copies);
    c.copyPart->setVisible(copies);
    c.elementButtons[1]->setVisible(!copies);
    c.elementButtons[1]->setEnabled(replaces);
    c.elementButtons[2]->setVisible(copies);
    c.imgSwop->setVisible(replaces);
    c.imgSwop->setEnabled(replaces);
    c.chkSmart->setEnabled(replaces);
    showButtons();
    if (m_lastList == (copies ? c.cmbReplaceText : c.copyPart->cmbForm) || role == SearchRole::Search)
        m_lastList = c.cmbSearchText;
    applyRules();
}

void frmSearch::showButtons() {
    SearchControls &c = m_controls;
    const bool replaces = m_role == SearchRole::Replace;
    const bool copies = m_role == SearchRole::CopyMatches;
    c.cmdReplaceAll->setText(replaces ? QStringLiteral("Replace &All") : QStringLiteral("Find &All"));
    c.cmdReplace->setVisible(replaces && !m_collecting);
    c.cmdCopyMatches->setVisible(!replaces && !m_collecting);
    showPurpose(*c.cmdCopyMatches, !copies);
    for (QPushButton *button : {c.cmdSearch, c.cmdReplaceAll})
        button->setVisible(!m_collecting);
    for (QPushButton *button : {c.cmdSearch, c.cmdReplace, c.cmdReplaceAll, c.cmdCopyMatches})
        button->setEnabled(!m_collecting);
    c.chkReplaceAll->setVisible(m_collecting && replaces);
    c.cmdOK->setVisible(m_collecting);
    c.cmdCancel->setVisible(m_collecting);
    (m_collecting ? c.cmdOK : copies ? c.cmdCopyMatches : c.cmdSearch)->setDefault(true);
}

/// Brings all controls to what the form says.
void frmSearch::showForm() {
    SearchControls &c = m_controls;
    c.cmbSearchText->show(m_form.recentFinds, m_form.request.find);
    c.cmbReplaceText->show(m_form.recentReplaces, m_form.request.replace);
    c.copyPart->show(m_form.copyForm, m_form.copyInPlace);
    c.cmbDecimalSep->setEditText(m_form.request.decimalSep);
    c.cmbThousandsSep->setEditText(m_form.request.groupingSep);
    applyRules();
}

void frmSearch::readTexts() {
    m_form.request = presentRequest();
    m_form.copyForm = m_controls.copyPart->cmbForm->currentText();
}

/// Options, what is enabled and what is shown, from the form.
void frmSearch::applyRules() {
    noteSizeOfUser();
    SearchControls &c = m_controls;
    {
        const QSignalBlocker quiet(c.TabStrip1);
        c.TabStrip1->setCurrentIndex(tabOf(m_form.request.mode));
    }
    c.optSrchDown->setChecked(m_form.request.direction == SearchDirection::Down);
    c.optSrchUp->setChecked(m_form.request.direction == SearchDirection::Up);
    c.optSrchFromStart->setChecked(m_form.request.direction == SearchDirection::FromStart);
    c.chkMatchCase->setChecked(m_form.request.matchCase);
    c.chkSmart->setChecked(m_form.request.smartReplace);
    c.chkWholeWord->setChecked(m_form.request.wholeWords);
    c.chkWholeWord->setEnabled(m_form.wholeWordsEnabled());
    c.chkReplaceAll->setChecked(m_form.request.replaceAll);
    c.chkSpecialChars->setChecked(m_form.request.specialChars);
    for (ElementButton *button : c.elementButtons)
        button->offer(m_form.request.mode, m_form.request.specialChars && m_form.specialCharsShown());
    for (const auto &[button, text] : c.insertButtons)
        button->setEnabled(m_form.request.specialChars);
    c.optWildcardOptions[static_cast<std::size_t>(m_form.request.anchor)]->setChecked(true);
    c.fraOptions->setVisible(m_form.expanded);
    c.fraSpecialChars->setVisible(m_form.expanded && m_form.specialCharsShown());
    c.fraWildcards->setVisible(m_form.expanded && m_form.wildcardsShown());
    c.fraWildcardHelp->setVisible(m_form.expanded && m_form.wildcardsShown());
    c.cmdMore->setText(m_form.expanded ? QStringLiteral("Less     ") : QStringLiteral("&More     "));
    c.picMoreArrowDown->setVisible(!m_form.expanded);
    c.picMoreArrowUp->setVisible(m_form.expanded);
    applyLiveRules();
    c.labFolded->setText(m_form.expanded ? QString() : m_form.optionsOn(m_role));
    fitSize();
}

void frmSearch::applyLiveRules() {
    SearchControls &c = m_controls;
    const bool isLive = m_live != nullptr && !m_collecting;
    const bool replaces = m_role == SearchRole::Replace;
    c.labAnswer->setVisible(m_live != nullptr);
    c.labForecast->setVisible(m_live != nullptr && replaces);
    c.chkMarkMatches->setVisible(isLive);
    c.lstReplacements->setVisible(isLive && replaces && m_form.expanded);
    if (m_live == nullptr)
        return;
    const auto role = replaces ? LiveSearch::Role::Replacing : LiveSearch::Role::Searching;
    m_live->ask(m_collecting ? LiveSearch::Role::Collecting : role);
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

/// To be called before what is shown changes: that may enlarge the window by itself.
void frmSearch::noteSizeOfUser() {
    if (m_givenSize.isValid())
        m_added = (m_added + size() - m_givenSize).expandedTo({0, 0});
    m_givenSize = size();
}

/// As large as what is shown needs, and larger by what the user has added.
void frmSearch::fitSize() {
    activateLayout(*this);
    if (const QSize needed = sizeHint(); needed != m_fittedSize) {
        m_fittedSize = needed;
        resize(needed + m_added);
        if (onFitted)
            onFitted();
    }
    m_givenSize = size();
}

void frmSearch::showEvent(QShowEvent *event) {
    if (onShow && !event->spontaneous())
        onShow();
    QDialog::showEvent(event);
}

void frmSearch::showDialog(bool bReplace) {
    open(bReplace ? SearchRole::Replace : SearchRole::Search);
}

void frmSearch::showCopyMatches() {
    open(SearchRole::CopyMatches);
}

void frmSearch::open(SearchRole role) {
    useRole(role);
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
    const bool wasActive = isActiveWindow();
    command();
    if (onSearched)
        onSearched();
    // Under the list of results the window manager may have chosen another window.
    if (wasActive)
        activateWindow();
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
