// SPDX-License-Identifier: MIT
#include "powerbuttons/ui/frmPowerButton.h"

#include "powerbuttons/circular_check.h"
#include "powerbuttons/ui/dlgChoosePB.h"
#include "powerbuttons/ui/dlgEditIcon.h"
#include "powerbuttons/ui/icon_painter.h"

#include <QApplication>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QToolButton>
#include <QTreeWidget>

namespace tolvo {

frmPowerButton::frmPowerButton(CPowerButtonCollection &buttons, CPowerButtonMethods &methods,
                               const Catalogue &tools, MessageBoxes &boxes, ActionSettings &settings,
                               QWidget *parent)
    : QDialog(parent), m_buttons(buttons), m_boxes(boxes), m_settings(settings),
      m_rules(buttons, methods, tools, boxes, *this) {
    setObjectName(QStringLiteral("frmPowerButton"));
    makeTree(tools);
    makeHead();
    m_stepsBox = makeSteps();
    makeAction();
    makeMenus(tools);
    arrange(makeFoot());
}

void frmPowerButton::init(int index) {
    m_rules.init(index);
    setWindowTitle(m_rules.caption());
    m_name->setText(m_rules.button().Name);
    m_tree->setCurrentItem(nullptr);
    m_tree->collapseAll();
    if (m_tree->topLevelItemCount() > 0)
        m_tree->expandItem(m_tree->topLevelItem(0));
    m_tree->scrollToTop();
    fitToScreen();
    fill();
    m_name->setFocus();
}

void frmPowerButton::fill() {
    const EditorRules::Form form = m_rules.form();
    m_frame->setTitle(form.frameCaption);
    m_tool->setText(form.toolName.isEmpty() ? QStringLiteral("Choose a tool on the left") : form.toolName);
    m_tool->setEnabled(!form.toolName.isEmpty());
    m_toolTip->setText(form.toolTip);
    m_details->setText(form.details);
    for (QRadioButton *option : {m_prompt, m_current, m_custom}) {
        option->setAutoExclusive(false); // else the last one could not be cleared
        option->setChecked(false);
        option->setAutoExclusive(true);
    }
    m_prompt->setChecked(form.option == SettingsFrom::Prompt);
    m_custom->setChecked(form.option == SettingsFrom::Custom);
    m_current->setChecked(form.option == SettingsFrom::Current);
    m_prompt->setEnabled(form.optionsEnabled);
    m_current->setEnabled(form.optionsEnabled);
    m_custom->setEnabled(form.customEnabled);
    m_askSettings->setEnabled(form.customEnabled);
    m_left->setVisible(form.leftVisible);
    m_right->setVisible(form.rightVisible);
    m_delete->setVisible(form.deleteVisible);
    m_examples->setVisible(form.examplesVisible);
    m_icon->setIcon(toQIcon(shownIcon(m_rules.button(), m_rules.number())));
    fillSteps();
    showToolInTree();
}

void frmPowerButton::showToolInTree() {
    const auto action = m_rules.button().Item(m_rules.position());
    const QString token = action->Tool() ? action->Tool()->Token() : QString();
    for (QTreeWidgetItemIterator item(m_tree); *item != nullptr; ++item) {
        if (!token.isEmpty() && (*item)->data(0, Qt::UserRole) == token) {
            m_tree->setCurrentItem(*item);
            m_tree->scrollToItem(*item); // a current item stays hidden in a group that has been closed
            return;
        }
    }
    m_tree->clearSelection();
}

void frmPowerButton::choose(const QTreeWidgetItem *item) {
    if (item == nullptr || item->parent() == nullptr)
        return;
    m_rules.chooseTool(item->data(0, Qt::UserRole).toString());
    fill();
}

std::optional<QString> frmPowerButton::getSettings(const QString &token, const QString &details) {
    if (token != powerButtonToken)
        return m_settings.getSettings(token, details);
    QString settings = details;
    dlgChoosePB dialog(m_buttons, this);
    return dialog.showDialog(settings, m_rules.number()) ? std::optional(settings) : std::nullopt;
}

void frmPowerButton::editIcon() {
    ButtonIcon icon = iconOf(m_rules.button());
    dlgEditIcon dialog(m_recentCharacters, this);
    if (dialog.showDialog(icon)) {
        m_rules.noteForUndo();
        setIcon(m_rules.button(), icon);
    }
    fill();
}

bool frmPowerButton::save() {
    const EditorRules::Saved saved = m_rules.save(m_name->text());
    if (saved == EditorRules::Saved::NoName) {
        m_name->setFocus();
        m_name->selectAll();
    }
    return saved == EditorRules::Saved::Yes;
}

void frmPowerButton::loadExample(const CPowerButton &example) {
    m_rules.loadExample(example);
    // The font that stands in here for the one asked for may be of another width.
    ButtonIcon icon = iconOf(example);
    const QPointF position = centredPosition(icon);
    icon.x = position.x();
    icon.y = position.y();
    setIcon(m_rules.button(), icon);
    if (m_name->text().isEmpty() || m_name->text() == CPowerButton::undefinedName())
        m_name->setText(example.Name);
    fill();
}

void frmPowerButton::reject() {
    m_rules.cancel();
    QDialog::reject();
}

bool frmPowerButton::eventFilter(QObject *watched, QEvent *event) {
    if (watched == m_name && event->type() == QEvent::FocusIn &&
        m_name->text() == CPowerButton::undefinedName())
        // After the mouse press that sets the caret.
        QMetaObject::invokeMethod(m_name, "selectAll", Qt::QueuedConnection);
    if (watched == m_tree && event->type() == QEvent::KeyPress && treeKey(*static_cast<QKeyEvent *>(event)))
        return true;
    return QDialog::eventFilter(watched, event);
}

bool frmPowerButton::treeKey(const QKeyEvent &key) {
    const bool goesOn =
        m_sinceTyped.isValid() && !m_sinceTyped.hasExpired(QApplication::keyboardInputInterval());
    const bool types = !key.text().isEmpty() && key.text().front().isPrint() &&
                       !(key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
    const bool space = key.key() == Qt::Key_Space;
    if (types && (!space || goesOn)) {
        m_sinceTyped.start();
        if (space)
            m_tree->keyboardSearch(key.text());
        return space;
    }
    if (!space && key.key() != Qt::Key_Return && key.key() != Qt::Key_Enter)
        return false;
    QTreeWidgetItem *item = m_tree->currentItem();
    if (item != nullptr && item->parent() == nullptr)
        item->setExpanded(!item->isExpanded());
    choose(item);
    return true;
}

} // namespace tolvo
