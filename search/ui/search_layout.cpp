// SPDX-License-Identifier: MIT
// What the search window shows: its controls by role and mode, and its size.
#include "base/application.h"
#include "search/ui/frmSearch.h"
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
#include <QSignalBlocker>
#include <QTabBar>
#include <QToolButton>

namespace tolvo {

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

/// To be called before what is shown changes: that may enlarge the window by itself.
void frmSearch::noteSizeOfUser() {
    if (!isWindow()) {
        m_givenSize = {}; // what holds it decides
        return;
    }
    if (m_givenSize.isValid())
        m_added = (m_added + size() - m_givenSize).expandedTo({0, 0});
    m_givenSize = size();
}

/// As large as what is shown needs, and larger by what the user has added.
void frmSearch::fitSize() {
    activateLayout(*this);
    if (m_controls.fraWildcardHelp->isVisibleTo(this) && sizeHint().width() > roomOnScreen(*this).width()) {
        m_controls.putHelpBelow();
        activateLayout(*this);
    }
    if (!isWindow()) {
        m_fittedSize = {};
        updateGeometry();
        return;
    }
    if (const QSize needed = sizeHint(); needed != m_fittedSize) {
        m_fittedSize = needed;
        resize(needed + m_added);
        if (onFitted)
            onFitted();
    }
    m_givenSize = size();
}

} // namespace tolvo
