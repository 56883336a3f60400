// SPDX-License-Identifier: MIT
#include "search/ui/copy_part.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

namespace tolvo {

CopyPart::CopyPart(QGridLayout &grid, int row, QWidget &parent, int room)
    : labForm(new QLabel(QStringLiteral("Fo&rm:"), &parent)),
      cmbForm(new SearchListEdit(QStringLiteral("cmbForm"), &parent)), fraCopyTo(new QWidget(&parent)),
      optToClipboard(new QRadioButton(QStringLiteral("To the cl&ipboard"), fraCopyTo)),
      optInPlace(new QRadioButton(QStringLiteral("Replacin&g the text"), fraCopyTo)) {
    labForm->setObjectName(QStringLiteral("labForm"));
    fraCopyTo->setObjectName(QStringLiteral("fraCopyTo"));
    optToClipboard->setObjectName(QStringLiteral("optToClipboard"));
    optInPlace->setObjectName(QStringLiteral("optInPlace"));
    labForm->setBuddy(cmbForm);
    cmbForm->setAccessibleName(QStringLiteral("Form"));
    cmbForm->setToolTip(QStringLiteral("What each match becomes: $& is the match, $1 its first group"));
    cmbForm->lineEdit()->setPlaceholderText(QStringLiteral("$&: the match as it is"));
    auto *choice = new QHBoxLayout(fraCopyTo);
    choice->setContentsMargins({});
    choice->addWidget(optToClipboard);
    choice->addWidget(optInPlace);
    choice->addStretch(1);
    if (choice->sizeHint().width() > room)
        choice->setDirection(QBoxLayout::TopToBottom);
    grid.addWidget(labForm, row, 0);
    grid.addWidget(cmbForm, row, 1);
    grid.addWidget(fraCopyTo, row + 1, 1);
}

void CopyPart::setVisible(bool visible) {
    for (QWidget *part : std::initializer_list<QWidget *>{labForm, cmbForm, fraCopyTo})
        part->setVisible(visible);
}

void CopyPart::show(const QString &form, bool inPlace) {
    cmbForm->show({QStringLiteral("$&"), QStringLiteral("$1"), QStringLiteral("$1 $2")}, form);
    (inPlace ? optInPlace : optToClipboard)->setChecked(true);
}

QPushButton *makeCopyButton(QWidget &window) {
    auto *button = new QPushButton(&window);
    button->setObjectName(QStringLiteral("cmdCopyMatches"));
    button->setAutoDefault(false);
    return button;
}

void showPurpose(QPushButton &cmdCopyMatches, bool opens) {
    cmdCopyMatches.setText(opens ? QStringLiteral("Cop&y matches...") : QStringLiteral("Cop&y matches"));
    cmdCopyMatches.setToolTip(
        opens ? QStringLiteral("Make a text of all matches, one a line")
              : QStringLiteral("Copy all matches, one a line, in the form that is given"));
}

} // namespace tolvo
