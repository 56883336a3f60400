// SPDX-License-Identifier: MIT
#include "powerbuttons/ui/dlgShareButton.h"

#include "powerbuttons/ui/icon_painter.h"
#include "powerbuttons/ui/steps_view.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

namespace tolvo {

dlgShareButton::dlgShareButton(const CPowerButtonCollection &buttons, int number, QWidget *parent)
    : QDialog(parent), m_buttons(buttons), m_choice(new QComboBox(this)),
      m_text(makeStepsView(QStringLiteral("txtShared"), QStringLiteral("What is passed on"), this)) {
    setObjectName(QStringLiteral("dlgShareButton"));
    setWindowTitle(QStringLiteral("Share a PowerButton"));
    m_text->setMinimumHeight(m_text->fontMetrics().lineSpacing() * 15);
    m_choice->setObjectName(QStringLiteral("cboShared"));
    for (int candidate = 1; candidate <= CPowerButtonCollection::buttonCount; ++candidate) {
        if (isEmptyPlace(buttons, candidate))
            continue;
        const CPowerButton &button = *buttons.Item(candidate);
        m_choice->addItem(toQIcon(shownIcon(button, candidate)), placeName(buttons, candidate), candidate);
    }
    auto *box = new QDialogButtonBox(QDialogButtonBox::Close, this);
    m_save = box->addButton(QStringLiteral("&Save to File..."), QDialogButtonBox::ActionRole);
    m_copy = box->addButton(QStringLiteral("&Copy"), QDialogButtonBox::ActionRole);
    m_save->setObjectName(QStringLiteral("cmdSaveShared"));
    m_copy->setObjectName(QStringLiteral("cmdCopyShared"));
    m_copy->setToolTip(QStringLiteral("Put it on the clipboard as text, for a mail or a chat"));
    m_save->setDefault(true);
    connect(m_save, &QPushButton::clicked, this, [this] { onSave(m_text->toPlainText(), m_name); });
    connect(m_copy, &QPushButton::clicked, this, [this] { onCopy(m_text->toPlainText()); });
    connect(box, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_choice, &QComboBox::currentIndexChanged, this,
            [this] { showButton(m_choice->currentData().toInt()); });

    auto *form = new QFormLayout;
    form->addRow(QStringLiteral("&PowerButton:"), m_choice);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(m_text, 1);
    layout->addWidget(box);
    m_choice->setCurrentIndex(std::max(0, m_choice->findData(number)));
    showButton(m_choice->currentData().toInt());
    QWidget *before = m_choice;
    for (QWidget *next : QList<QWidget *>{m_save, m_copy, box->button(QDialogButtonBox::Close), m_text}) {
        setTabOrder(before, next);
        before = next;
    }
    m_choice->setFocus();
}

void dlgShareButton::showButton(int number) {
    const SharedButtons shared = gatherButtons(m_buttons, number);
    const bool fine = shared.trouble.isEmpty();
    m_name = fine ? shared.main().Name : QString();
    m_text->setPlainText(fine ? buttonFileText(shared) : shared.trouble);
    m_save->setEnabled(fine);
    m_copy->setEnabled(fine);
}

} // namespace tolvo
