// SPDX-License-Identifier: MIT
// What each control and each key of the search window does.
#include "search/ui/frmSearch.h"

#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>
#include <QShortcut>
#include <QTabBar>
#include <QToolButton>

namespace tolvo {

void frmSearch::connectControls() {
    SearchControls &c = m_controls;
    connect(c.TabStrip1, &QTabBar::currentChanged, this, [this](int index) {
        m_form.request.mode = modeOfTab(index);
        applyRules();
    });
    for (SearchListEdit *list : {c.cmbSearchText, c.cmbReplaceText})
        list->wordOn = [this](const QString &entry) { return m_form.modeOf(entry); };
    for (SearchListEdit *list : c.textLists()) {
        connect(list, &SearchListEdit::used, this, [this, list] { m_lastList = list; });
        connect(list, &SearchListEdit::escaped, this, [this] {
            if (m_form.specialCharsShown())
                setSpecialChars(true);
        });
    }
    connect(c.cmdSearch, &QPushButton::clicked, this, &frmSearch::cmdSearch_Click);
    connect(c.cmdReplace, &QPushButton::clicked, this, &frmSearch::cmdReplace_Click);
    connect(c.cmdReplaceAll, &QPushButton::clicked, this, &frmSearch::cmdReplaceAll_Click);
    connect(c.cmdCopyMatches, &QPushButton::clicked, this, &frmSearch::cmdCopyMatches_Click);
    connect(c.cmdOK, &QPushButton::clicked, this, &frmSearch::accept);
    connect(c.cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(c.imgSwop, &QToolButton::clicked, this, &frmSearch::swop);
    connect(c.cmdMore, &QPushButton::clicked, this, &frmSearch::toggleMore);
    connect(c.picMoreArrowDown, &QToolButton::clicked, this, &frmSearch::toggleMore);
    connect(c.picMoreArrowUp, &QToolButton::clicked, this, &frmSearch::toggleMore);
    connect(c.cmdSearchHelp, &QPushButton::clicked, this,
            [this] { m_boxes.show({.text = QStringLiteral("Help is not implemented yet")}); });
    for (ElementButton *button : c.elementButtons)
        connect(button, &ElementButton::specialCharsWanted, this, [this] { setSpecialChars(true); });
    for (const auto &[button, text] : c.insertButtons)
        connect(button, &QPushButton::clicked, this,
                [this, inserted = text] { m_lastList->insertText(inserted); });
}

void frmSearch::connectKeys() {
    const auto shortcut = [this](const QKeySequence &keys, auto action) {
        connect(new QShortcut(keys, this), &QShortcut::activated, this, action);
    };
    // The letter of "More" is gone while "Less" is shown, and belongs to Match Case there.
    shortcut(Qt::ALT | Qt::Key_V, [this] { toggleMore(); });
    shortcut(Qt::CTRL | Qt::SHIFT | Qt::ALT | Qt::Key_R, [this] { ConvertToRegExp(); });
    const auto turn = [tabs = m_controls.TabStrip1](int step) {
        tabs->setCurrentIndex((tabs->currentIndex() + step + tabs->count()) % tabs->count());
    };
    // The menu of the list that has the focus.
    shortcut(Qt::ALT | Qt::Key_Insert, [this] {
        const auto lists = m_controls.textLists();
        for (std::size_t i = 0; i < lists.size(); ++i) {
            if (lists[i] == m_lastList)
                m_controls.elementButtons[i]->showMenu();
        }
    });
    const auto unlessCollecting = [this](auto action) {
        return [this, action] {
            if (!m_collecting)
                action();
        };
    };
    shortcut(Qt::CTRL | Qt::Key_F, unlessCollecting([this] { showDialog(false); }));
    shortcut(Qt::CTRL | Qt::Key_H, unlessCollecting([this] { showDialog(true); }));
    shortcut(Qt::Key_F3, unlessCollecting([this] { cmdSearch_Click(); }));
    shortcut(Qt::CTRL | Qt::Key_PageDown, [turn] { turn(1); });
    shortcut(Qt::CTRL | Qt::Key_PageUp, [turn] { turn(-1); });
}

/// A click on any of these returns the focus to the list that had it.
void frmSearch::connectOptions() {
    SearchControls &c = m_controls;
    const auto onClick = [this](QAbstractButton *button, auto action) {
        connect(button, &QAbstractButton::clicked, this, [this, action](bool on) {
            action(on);
            applyRules();
            resumeList();
        });
    };
    onClick(c.optSrchDown, [this](bool) { m_form.request.direction = SearchDirection::Down; });
    onClick(c.optSrchUp, [this](bool) { m_form.request.direction = SearchDirection::Up; });
    onClick(c.optSrchFromStart, [this](bool) { m_form.request.direction = SearchDirection::FromStart; });
    onClick(c.chkMatchCase, [this](bool on) { m_form.request.matchCase = on; });
    onClick(c.chkSmart, [this](bool on) { m_form.request.smartReplace = on; });
    onClick(c.chkWholeWord, [this](bool on) { m_form.checkWholeWords(on); });
    onClick(c.copyPart->optToClipboard, [this](bool) { m_form.copyInPlace = false; });
    onClick(c.copyPart->optInPlace, [this](bool) { m_form.copyInPlace = true; });
    onClick(c.chkReplaceAll, [this](bool on) { m_form.request.replaceAll = on; });
    onClick(c.chkSpecialChars, [this](bool on) { m_form.request.specialChars = on; });
    onClick(c.chkMarkMatches, [](bool) {});
    for (std::size_t i = 0; i < c.optWildcardOptions.size(); ++i)
        onClick(c.optWildcardOptions[i], [this, i](bool) { m_form.chooseAnchor(static_cast<Anchor>(i)); });
    connect(c.cmbDecimalSep, &QComboBox::editTextChanged, this,
            [this](const QString &text) { m_form.request.decimalSep = text; });
    connect(c.cmbThousandsSep, &QComboBox::editTextChanged, this,
            [this](const QString &text) { m_form.request.groupingSep = text; });
    for (QComboBox *list : {c.cmbDecimalSep, c.cmbThousandsSep})
        connect(list, &QComboBox::activated, this, [this] { resumeList(); });
}

} // namespace tolvo
