// SPDX-License-Identifier: MIT
#include "preferences/ui/ThirdPartiesWindow.h"

#include "base/application.h"
#include "platform/processes.h"
#include "preferences/third_parties.h"
#include "widgets/LinkLabel.h"
#include "widgets/screen_fit.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QPushButton>

namespace tolvo {

ThirdPartiesWindow::ThirdPartiesWindow(Processes &processes, QWidget *parent) : QDialog(parent) {
    setObjectName(QStringLiteral("ThirdPartiesWindow"));
    setWindowTitle(QStringLiteral("Third-party software"));

    auto *layout = new QGridLayout(this);
    layout->setContentsMargins(20, 20, 20, 14);
    layout->setHorizontalSpacing(18);
    layout->setVerticalSpacing(8);
    auto *about = new QLabel(applicationTitle() + QStringLiteral(" stands on the work of others:"));
    layout->addWidget(about, 0, 0, 1, 4);
    QList<QLabel *> uses;
    for (const ThirdParty &party : thirdParties()) {
        const int row = layout->rowCount();
        auto *name = new LinkLabel(party.name, party.address, LinkLabel::Underline::UnderPointer);
        name->setObjectName(QStringLiteral("lbl") + party.name);
        name->setAccessibleDescription(
            QStringLiteral("%1, version %2, licence %3").arg(party.use, party.version, party.licence));
        connect(name, &QLabel::linkActivated, this,
                [&processes](const QString &address) { processes.open(address); });
        layout->addWidget(name, row, 0);
        layout->addWidget(new QLabel(party.version), row, 1);
        layout->addWidget(new QLabel(party.licence), row, 2);
        auto *use = new QLabel(party.use);
        layout->addWidget(use, row, 3);
        uses += use;
    }
    layout->setRowMinimumHeight(layout->rowCount(), 8);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    buttons->button(QDialogButtonBox::Close)->setDefault(true);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons, layout->rowCount(), 0, 1, 4);
    const bool fits = layout->minimumSize().width() <= roomOnScreen(*this).width();
    layout->setSizeConstraint(fits ? QLayout::SetFixedSize : QLayout::SetDefaultConstraint);
    for (QLabel *use : uses)
        use->setWordWrap(!fits);
    buttons->button(QDialogButtonBox::Close)->setFocus();
}

} // namespace tolvo
