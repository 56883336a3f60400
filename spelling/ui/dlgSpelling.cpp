// SPDX-License-Identifier: MIT
#include "spelling/ui/dlgSpelling.h"

#include "platform/desktop/plain_tool_tip.h"
#include "platform/report_error.h"
#include "spelling/ui/MarkedTextView.h"
#include "widgets/announce.h"

#include <QCheckBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QShowEvent>
#include <utility>

namespace tolvo {

void dlgSpelling::connectEntry() {
    txtCorrection->installEventFilter(this);
    lstSuggestions->installEventFilter(this);
    connect(txtCorrection, &QLineEdit::textChanged, this, [this](const QString &text) {
        if (!m_refreshing)
            act(QStringLiteral("txtCorrection"), [&](ErrorWalk &walk) { walk.setCorrection(text); });
    });
    connect(chkSmartReplace, &QCheckBox::toggled, this, [this](bool ticked) {
        if (m_walk)
            m_walk->setSmartReplace(ticked);
    });
    const auto row = [this](QListWidgetItem *item) { return lstSuggestions->row(item); };
    const auto click = [this, row](QListWidgetItem *item) {
        if (item && !m_refreshing)
            act(QStringLiteral("lstSuggestions"),
                [index = row(item)](ErrorWalk &walk) { walk.clickSuggestion(index); });
    };
    connect(lstSuggestions, &QListWidget::itemClicked, this, click);
    // The arrow keys choose a row as a click does; a row that opens more waits for a click or Enter.
    connect(lstSuggestions, &QListWidget::currentItemChanged, this, [this, click](QListWidgetItem *item) {
        if (item && !m_refreshing && item->text() != moreSuggestionsRow())
            click(item);
    });
    connect(lstSuggestions, &QListWidget::itemDoubleClicked, this, [this, row](QListWidgetItem *item) {
        act(QStringLiteral("lstSuggestions"),
            [index = row(item)](ErrorWalk &walk) { walk.doubleClickSuggestion(index); });
    });
}

/// Down leads from the replacement into the list and Up back again; Enter opens the row that stands for more.
bool dlgSpelling::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() != QEvent::KeyPress)
        return QDialog::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent *>(event)->key();
    const int row = lstSuggestions->currentRow();
    if (watched == txtCorrection && key == Qt::Key_Down && lstSuggestions->isEnabled()) {
        lstSuggestions->setFocus();
        if (row < 0)
            lstSuggestions->setCurrentRow(0);
        return true;
    }
    if (watched == lstSuggestions && key == Qt::Key_Up && row <= 0) {
        txtCorrection->setFocus();
        return true;
    }
    if (watched == lstSuggestions && (key == Qt::Key_Return || key == Qt::Key_Enter) && row >= 0 &&
        lstSuggestions->item(row)->text() == moreSuggestionsRow()) {
        act(QStringLiteral("lstSuggestions"), [row](ErrorWalk &walk) {
            walk.clickSuggestion(row); // opens it
            walk.clickSuggestion(row); // takes its first row, as the arrow keys do
        });
        return true;
    }
    return QDialog::eventFilter(watched, event);
}

/// A rule runs, and what it throws goes no further than here; then the controls show where the walk is.
void dlgSpelling::act(const QString &name, const std::function<void(ErrorWalk &)> &rule) {
    if (!m_walk)
        return;
    reportFailures(m_services.boxes, QStringLiteral("dlgSpelling"), name, [&] {
        try {
            rule(*m_walk);
        } catch (const CheckCancelled &) { // the walk stays where it is
        }
    });
    if (m_walk->isOver())
        done(m_walk->bCancelled() ? Rejected : Accepted);
    else
        refresh();
}

void dlgSpelling::refresh() {
    m_refreshing = true;
    const WalkControls &controls = m_walk->controls();
    setWindowTitle(controls.caption);
    labErrorType->setText(controls.labErrorType);
    labMistake->setText(controls.labMistake);
    labMistake->setToolTip(plainToolTip(controls.labMistake.left(1000)));
    labErrorDescription->setText(controls.labErrorDescription);
    labErrorDescription->setVisible(!controls.labErrorDescription.isEmpty());
    if (txtCorrection->text() != controls.txtCorrection) {
        txtCorrection->setText(controls.txtCorrection);
        txtCorrection->selectAll();
    }
    labPlace->setText(controls.labPlace);
    refreshSuggestions(controls);
    tellMistake();
    setUsable(*cmdChange, controls.cmdChangeEnabled);
    setUsable(*cmdChangeAll, controls.cmdChangeAllEnabled);
    setUsable(*cmdDelete, controls.cmdDeleteEnabled);
    setUsable(*cmdUndo, controls.cmdUndoEnabled);
    proposeNextStep();
    rtbText->showText(m_walk->rtbText(), m_walk->errorStart());
    m_refreshing = false;
}

/// What Enter does: the change that is proposed, the deletion of a repeated word, or else the next word.
void dlgSpelling::proposeNextStep() {
    QPushButton *proposed = cmdChange->isEnabled()   ? cmdChange
                            : cmdDelete->isEnabled() ? cmdDelete
                                                     : cmdIgnore;
    if (std::exchange(m_proposed, proposed) != proposed)
        proposed->setDefault(true);
}

/// The focus stays with the correction, whose text alone would be said: the mistake comes with it, and the
/// remark of a list that can't be reached.
void dlgSpelling::tellMistake() {
    QString mistake = labErrorType->text() + u' ' + labMistake->text() + QStringLiteral(", ");
    if (!lstSuggestions->isEnabled() && lstSuggestions->count() > 0)
        mistake += lstSuggestions->item(0)->text() + QStringLiteral(", ");
    mistake += labPlace->text();
    if (txtCorrection->accessibleDescription() == mistake)
        return;
    txtCorrection->setAccessibleDescription(mistake);
    announce(labMistake, mistake);
}

/// A control that goes grey under the focus would hand it to its neighbour, and the next key would act there.
void dlgSpelling::setUsable(QWidget &control, bool usable) {
    if (!usable && focusWidget() == &control)
        txtCorrection->setFocus();
    control.setEnabled(usable);
}

void dlgSpelling::refreshSuggestions(const WalkControls &controls) {
    QStringList shown;
    for (int row = 0; row < lstSuggestions->count(); ++row)
        shown += lstSuggestions->item(row)->text();
    if (shown != controls.lstSuggestions) {
        lstSuggestions->clear();
        lstSuggestions->addItems(controls.lstSuggestions);
    }
    setUsable(*lstSuggestions, controls.lstSuggestionsEnabled);
    // A list that can't be used still holds a remark for the user to read.
    for (int row = 0; row < lstSuggestions->count(); ++row)
        lstSuggestions->item(row)->setForeground(palette().brush(QPalette::Active, QPalette::Text));
    lstSuggestions->setCurrentRow(controls.selectedSuggestion);
}

bool dlgSpelling::CheckSpelling(ProofingHost &host, QString &text, int LangID, bool grammar) {
    m_walk = std::make_unique<ErrorWalk>(m_services, host);
    m_walk->setSmartReplace(chkSmartReplace->isChecked());
    m_walk->setRunWords(m_runWords);
    const auto walkEnds = [this](ErrorWalk *) { m_walk.reset(); };
    const std::unique_ptr<ErrorWalk, decltype(walkEnds)> atEnd(m_walk.get(), walkEnds);
    if (!m_walk->start(text, LangID, grammar))
        return false;
    if (m_worker)
        m_walk->lookAhead(*m_worker);
    refresh();
    txtCorrection->setFocus();
    exec();
    m_runWords = m_walk->runWords();
    text = m_walk->rtbText().text();
    return !m_walk->bCancelled();
}

void dlgSpelling::reject() {
    if (m_walk)
        m_walk->leave();
    if (!m_walk || m_walk->isOver())
        QDialog::reject();
}

void dlgSpelling::showEvent(QShowEvent *event) {
    QDialog::showEvent(event);
    txtCorrection->selectAll();
}

} // namespace tolvo
