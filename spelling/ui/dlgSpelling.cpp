// SPDX-License-Identifier: MIT
#include "spelling/ui/dlgSpelling.h"

#include "platform/desktop/plain_tool_tip.h"
#include "platform/report_error.h"
#include "spelling/ui/MarkedTextView.h"
#include "widgets/announce.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QFontMetrics>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QShowEvent>
#include <utility>

namespace tolvo {

namespace {

template <class Widget>
Widget *named(Widget *widget, const QString &name, const QString &accessibleName = {}) {
    widget->setObjectName(name);
    if (!accessibleName.isEmpty())
        widget->setAccessibleName(accessibleName);
    return widget;
}

} // namespace

dlgSpelling::dlgSpelling(const SpellingServices &services, QWidget *parent)
    : QDialog(parent), m_services(services),
      rtbText(named(new MarkedTextView(this), QStringLiteral("rtbText"), QStringLiteral("Text"))),
      labErrorType(
          named(new QLabel(QStringLiteral("Not in dictionary:"), this), QStringLiteral("labErrorType"))),
      labMistake(named(new QLabel(this), QStringLiteral("labMistake"))),
      labErrorDescription(named(new QLabel(this), QStringLiteral("labErrorDescription"))),
      labPlace(named(new QLabel(this), QStringLiteral("labPlace"))),
      lstSuggestions(
          named(new QListWidget(this), QStringLiteral("lstSuggestions"), QStringLiteral("Suggestions"))),
      txtCorrection(named(new QLineEdit(this), QStringLiteral("txtCorrection"), QStringLiteral("Change to"))),
      chkSmartReplace(
          named(new QCheckBox(QStringLiteral("&Smart Replace"), this), QStringLiteral("chkSmartReplace"))) {
    setObjectName(QStringLiteral("dlgSpelling"));
    setModal(true);
    auto *columns = new QHBoxLayout(this);
    columns->addLayout(layOutText(), 1);
    columns->addLayout(layOutButtons());
    connectEntry();
    arrangeTabOrder();
    const QFontMetrics metrics = fontMetrics();
    resize(metrics.averageCharWidth() * 100, metrics.lineSpacing() * 30);
}

dlgSpelling::~dlgSpelling() = default;

QLayout *dlgSpelling::layOutText() {
    for (QLabel *label : {labMistake, labErrorDescription}) {
        label->setTextFormat(Qt::PlainText);
        label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    }
    QFont bold = labMistake->font();
    bold.setBold(true);
    labMistake->setFont(bold);
    // One endless word must not make the window wide.
    labMistake->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    labErrorDescription->setWordWrap(true);
    auto *changeTo = new QLabel(QStringLiteral("Change to:"), this);
    changeTo->setBuddy(txtCorrection);

    auto *mistake = new QHBoxLayout;
    mistake->addWidget(labErrorType);
    mistake->addWidget(labMistake, 1);
    auto *correction = new QHBoxLayout;
    correction->addWidget(changeTo);
    correction->addWidget(txtCorrection, 1);
    auto *column = new QVBoxLayout;
    column->addLayout(mistake);
    column->addWidget(labErrorDescription);
    column->addWidget(rtbText, 3);
    column->addLayout(correction);
    column->addWidget(lstSuggestions, 2);
    auto *bottom = new QHBoxLayout;
    bottom->addWidget(chkSmartReplace, 1);
    bottom->addWidget(labPlace);
    column->addLayout(bottom);
    return column;
}

QPushButton *dlgSpelling::addButton(QBoxLayout &column, const QString &name, const QString &caption) {
    auto *button = named(new QPushButton(caption, this), name);
    column.addWidget(button);
    return button;
}

QPushButton *dlgSpelling::addRule(QBoxLayout &column, const QString &name, const QString &caption,
                                  void (ErrorWalk::*rule)()) {
    QPushButton *button = addButton(column, name, caption);
    connect(button, &QPushButton::clicked, this,
            [this, name, rule] { act(name, [rule](ErrorWalk &walk) { (walk.*rule)(); }); });
    return button;
}

QLayout *dlgSpelling::layOutButtons() {
    auto *column = new QVBoxLayout;
    const int gap = fontMetrics().lineSpacing() / 2;
    cmdIgnore =
        addRule(*column, QStringLiteral("cmdIgnore"), QStringLiteral("&Ignore"), &ErrorWalk::cmdIgnore);
    addRule(*column, QStringLiteral("cmdIgnoreAll"), QStringLiteral("I&gnore All"), &ErrorWalk::cmdIgnoreAll);
    addRule(*column, QStringLiteral("cmdAddToDic"), QStringLiteral("&Add to dictionary"),
            &ErrorWalk::cmdAddToDic);
    addRule(*column, QStringLiteral("cmdAddForRun"), QStringLiteral("Add for this &run"),
            &ErrorWalk::cmdAddForRun)
        ->setToolTip(QStringLiteral("Knows the word until Tolvo ends"));
    column->addSpacing(gap);
    cmdChange =
        addRule(*column, QStringLiteral("cmdChange"), QStringLiteral("&Change"), &ErrorWalk::cmdChange);
    cmdChangeAll = addRule(*column, QStringLiteral("cmdChangeAll"), QStringLiteral("Change A&ll"),
                           &ErrorWalk::cmdChangeAll);
    cmdDelete =
        addRule(*column, QStringLiteral("cmdDelete"), QStringLiteral("&Delete"), &ErrorWalk::cmdDelete);
    column->addSpacing(gap);
    cmdUndo = addRule(*column, QStringLiteral("cmdUndo"), QStringLiteral("&Undo Last"), &ErrorWalk::cmdUndo);
    addButton(*column, QStringLiteral("cmdExplain"), QStringLiteral("Explain...")); // explains nothing yet
    QPushButton *help = addButton(*column, QStringLiteral("cmdHelp"), QStringLiteral("&Help"));
    connect(help, &QPushButton::clicked, this,
            [this] { m_services.boxes.show({.text = QStringLiteral("Help is not implemented yet")}); });
    column->addStretch(1);
    addRule(*column, QStringLiteral("cmdStop"), QStringLiteral("Stop"), &ErrorWalk::cmdStop);
    addRule(*column, QStringLiteral("cmdCancel"), QStringLiteral("Cancel"), &ErrorWalk::cmdCancel);
    return column;
}

/// As the eye goes: down the left column, then down the buttons.
void dlgSpelling::arrangeTabOrder() {
    QList<QWidget *> order{rtbText, txtCorrection, lstSuggestions, chkSmartReplace};
    for (QPushButton *button : findChildren<QPushButton *>())
        order += button;
    for (qsizetype i = 1; i < order.size(); ++i)
        setTabOrder(order[i - 1], order[i]);
}

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
