// SPDX-License-Identifier: MIT
// The controls of dlgSpelling and where they stand.
#include "spelling/ui/dlgSpelling.h"

#include "platform/message_box.h"
#include "spelling/ui/MarkedTextView.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QFontMetrics>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

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

} // namespace tolvo
