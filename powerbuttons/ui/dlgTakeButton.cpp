// SPDX-License-Identifier: MIT
#include "powerbuttons/ui/dlgTakeButton.h"

#include "powerbuttons/shared_steps.h"
#include "powerbuttons/ui/icon_painter.h"
#include "powerbuttons/ui/steps_view.h"
#include "widgets/grid.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

namespace tolvo {

namespace {

/// Icon and name; the name is somebody's text and shown as it is.
QLayout *makeHead(const CPowerButton &button) {
    auto *icon = new QLabel;
    icon->setPixmap(toQIcon(shownIcon(button, 1)).pixmap(iconSide, iconSide));
    auto *name = new QLabel(button.Name);
    name->setObjectName(QStringLiteral("labSharedName"));
    name->setTextFormat(Qt::PlainText);
    name->setWordWrap(true);
    QFont bold = name->font();
    bold.setBold(true);
    name->setFont(bold);
    auto *head = new QHBoxLayout;
    head->addWidget(icon);
    head->addWidget(name, 1);
    return head;
}

} // namespace

dlgTakeButton::dlgTakeButton(const SharedButtons &shared, const CPowerButtonCollection &buttons,
                             QWidget *parent)
    : QDialog(parent), m_shared(shared), m_buttons(buttons), m_place(new QComboBox(this)),
      m_consequence(new QLabel(this)) {
    setObjectName(QStringLiteral("dlgTakeButton"));
    setWindowTitle(QStringLiteral("Load a PowerButton"));
    auto *steps = makeStepsView(QStringLiteral("txtSteps"), QStringLiteral("What it does"), this);
    steps->setLineWrapMode(QPlainTextEdit::WidgetWidth);
    steps->setPlainText(sharedStepLines(shared).join(u'\n'));
    m_place->setObjectName(QStringLiteral("cboPlace"));
    for (int number = 1; number <= CPowerButtonCollection::buttonCount; ++number)
        m_place->addItem(placeName(buttons, number), number);
    m_consequence->setObjectName(QStringLiteral("labConsequence"));
    m_consequence->setTextFormat(Qt::PlainText);
    m_consequence->setWordWrap(true);
    auto *box = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    auto *take = box->addButton(QStringLiteral("&Load"), QDialogButtonBox::AcceptRole);
    take->setObjectName(QStringLiteral("cmdTake"));
    take->setDefault(true);
    connect(box, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(box, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_place, &QComboBox::currentIndexChanged, this, &dlgTakeButton::sayWhatHappens);

    auto *form = new QFormLayout;
    form->addRow(QStringLiteral("&PowerButton:"), m_place);
    auto *layout = new QVBoxLayout(this);
    layout->setSpacing(Grid(*this).gap());
    layout->addLayout(makeHead(shared.main()));
    layout->addWidget(steps, 1);
    layout->addLayout(form);
    layout->addWidget(m_consequence);
    layout->addWidget(box);
    take->setFocus();
}

int dlgTakeButton::choosePlace(int number) {
    const int first = number > 0 ? number : std::max(1, firstEmptyPlace(m_buttons));
    m_place->setCurrentIndex(first - 1);
    sayWhatHappens();
    return exec() == QDialog::Accepted ? m_place->currentData().toInt() : 0;
}

void dlgTakeButton::sayWhatHappens() {
    const int number = m_place->currentData().toInt();
    const PlacedButtons placed = placeButtons(m_shared, m_buttons, number);
    QStringList words;
    if (!placed.trouble.isEmpty())
        words += placed.trouble + u'.';
    else if (!isEmptyPlace(m_buttons, number))
        words += QStringLiteral("It takes the place of the one that is there.");
    for (qsizetype i = 0; i + 1 < placed.places.size(); ++i)
        words += QStringLiteral("\"%1\", which it runs, becomes PowerButton %2.")
                     .arg(placed.places.at(i).button->Name, QString::number(placed.places.at(i).number));
    m_consequence->setText(words.join(u' '));
    m_consequence->setVisible(!words.isEmpty());
    findChild<QPushButton *>(QStringLiteral("cmdTake"))->setEnabled(placed.trouble.isEmpty());
}

} // namespace tolvo
