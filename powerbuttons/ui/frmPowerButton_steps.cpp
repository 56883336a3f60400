// SPDX-License-Identifier: MIT
// The list of the steps in the PowerButton editor.
#include "powerbuttons/step_words.h"
#include "powerbuttons/ui/effect_view.h"
#include "powerbuttons/ui/frmPowerButton.h"
#include "powerbuttons/ui/step_list.h"
#include "widgets/screen_fit.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace tolvo {

QWidget *frmPowerButton::makeSteps() {
    auto *box = new QWidget(this);
    auto *label = new QLabel(QStringLiteral("S&teps:"), box);
    m_steps = new StepList(box);
    m_steps->setToolTip(QStringLiteral("A tick runs the step; drag or Ctrl-Up and Ctrl-Down move it"));
    label->setBuddy(m_steps);
    auto *layout = new QVBoxLayout(box);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(label);
    layout->addWidget(m_steps, 1);
    connect(m_steps, &StepList::chosen, this, [this](int position) { m_rules.goTo(position), fill(); });
    connect(m_steps, &StepList::dragged, this,
            [this](int from, int to) { m_rules.moveStep(from, to), fill(); });
    connect(m_steps, &StepList::ticked, this,
            [this](int position, bool off) { m_rules.switchOff(position, off), fill(); });
    connect(m_steps, &StepList::asked, this, &frmPowerButton::doWithStep);
    const auto walk = [this](QKeyCombination key, StepCommand command) {
        connect(new QShortcut(key, this), &QShortcut::activated, this,
                [this, command] { doWithStep(command); });
    };
    walk(Qt::CTRL | Qt::Key_Z, StepCommand::Undo);
    walk(Qt::CTRL | Qt::SHIFT | Qt::Key_Z, StepCommand::Redo);
    walk(Qt::CTRL | Qt::Key_Y, StepCommand::Redo);
    return box;
}

void frmPowerButton::fitToScreen() {
    arrangeFor(false);
    activateLayout(*this);
    // Where all of it scrolls it has a widget of its own.
    if (m_tree->parentWidget()->layout()->totalMinimumSize().width() > roomOnScreen(*this).width())
        arrangeFor(true);
}

void frmPowerButton::arrangeFor(bool narrow) {
    m_toolColumn->removeWidget(m_stepsBox);
    m_columns->removeWidget(m_stepsBox);
    if (narrow)
        m_toolColumn->addWidget(m_stepsBox, 2);
    else
        m_columns->insertWidget(1, m_stepsBox, 4);
    m_head->findChild<QLabel *>()->setWordWrap(narrow);
    const int treeWidth = narrow ? 24 : 32; // average characters
    m_tree->setMinimumWidth(fontMetrics().averageCharWidth() * treeWidth);
    const int columns = narrow ? 2 : 4;
    int place = 0;
    for (QPushButton *button : {m_left, m_right, m_add, m_delete}) {
        m_foot->removeWidget(button);
        m_foot->addWidget(button, place / columns, place % columns);
        ++place;
    }
}

void frmPowerButton::doWithStep(StepCommand command) {
    switch (command) {
    case StepCommand::MoveUp:
        m_rules.moveStep(m_rules.position(), m_rules.position() - 1);
        break;
    case StepCommand::MoveDown:
        m_rules.moveStep(m_rules.position(), m_rules.position() + 1);
        break;
    case StepCommand::Remove:
        m_rules.removeStep();
        break;
    case StepCommand::Duplicate:
        m_rules.duplicateStep();
        break;
    case StepCommand::Copy:
        m_rules.copyStep();
        break;
    case StepCommand::Cut:
        m_rules.cutStep();
        break;
    case StepCommand::Paste:
        m_rules.pasteStep();
        break;
    case StepCommand::Undo:
        m_rules.undo();
        break;
    case StepCommand::Redo:
        m_rules.redo();
        break;
    }
    fill();
}

void frmPowerButton::fillSteps() {
    const CPowerButton &button = m_rules.button();
    QList<StepList::Step> steps;
    for (int position = 1; position <= button.Count(); ++position) {
        CAction action = *button.Item(position);
        if (position == m_rules.position())
            action.setDlgOption(m_rules.form().option);
        steps.append({stepLine(position, action, m_buttons), action.switchedOff()});
    }
    m_steps->showSteps(steps, m_rules.position());
    askForEffect();
}

void frmPowerButton::showEffectsOf(StepEffects &effects) {
    m_effects = &effects;
    m_effectView = new EffectView(this);
    auto &rows = static_cast<QVBoxLayout &>(*layout());
    rows.insertWidget(1, m_effectView, 1);
    QWidget *next = findChild<QWidget *>(QStringLiteral("cmdLoadExample"));
    setTabOrder(m_delete, m_effectView->findChild<QWidget *>(QStringLiteral("txtBefore")));
    setTabOrder(m_effectView->findChild<QWidget *>(QStringLiteral("txtBefore")),
                m_effectView->findChild<QWidget *>(QStringLiteral("txtAfter")));
    setTabOrder(m_effectView->findChild<QWidget *>(QStringLiteral("txtAfter")), next);
}

/// The button goes with the option that is chosen on the form, which its Action takes later.
void frmPowerButton::askForEffect() {
    if (m_effects == nullptr)
        return;
    CPowerButton button = m_rules.button();
    const auto current = std::make_shared<CAction>(*button.Item(m_rules.position()));
    current->setDlgOption(m_rules.form().option);
    button.Add(current, m_rules.position());
    m_effectView->wait();
    m_effects->ask(button, m_rules.position(),
                   [this](const StepEffect &effect) { m_effectView->showEffect(effect); });
}

void frmPowerButton::done(int result) {
    if (m_effects != nullptr)
        m_effects->cancel();
    QDialog::done(result);
}

} // namespace tolvo
