// SPDX-License-Identifier: MIT
#include "shell/ui/dlgConfirmClose.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

namespace tolvo {

dlgConfirmClose::dlgConfirmClose(QWidget *parent) : QDialog(parent), m_prompt(new QLabel(this)) {
    setObjectName(QStringLiteral("dlgConfirmClose"));
    setWindowTitle(QStringLiteral("Confirm close"));
    m_prompt->setObjectName(QStringLiteral("Label1"));
    auto *sign = new QLabel(this);
    const int side = style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, this);
    sign->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxQuestion, nullptr, this).pixmap(side, side));
    auto *top = new QHBoxLayout;
    top->setSpacing(14);
    top->addWidget(sign);
    top->addWidget(m_prompt, 1);

    auto *buttons = new QHBoxLayout;
    buttons->addStretch(1);
    const auto add = [this, buttons](const char *name, const QString &caption, CloseAnswer answer) {
        auto *button = new QPushButton(caption, this);
        button->setObjectName(QLatin1StringView(name));
        connect(button, &QPushButton::clicked, this, [this, answer] { done(static_cast<int>(answer)); });
        buttons->addWidget(button);
        return button;
    };
    add("OKButton", QStringLiteral("Discard changes"), CloseAnswer::Discard);
    add("cmdCopyClose", QStringLiteral("Copy && Close"), CloseAnswer::CopyAndClose)->setDefault(true);
    add("CancelButton", QStringLiteral("Cancel"), CloseAnswer::Cancel);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(18, 18, 18, 14);
    layout->setSpacing(18);
    layout->addLayout(top);
    layout->addLayout(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

CloseAnswer dlgConfirmClose::MsgBox(const QString &prompt, int) {
    m_prompt->setText(prompt);
    // Escape and the close box answer 0 (QDialog::Rejected): the session goes on.
    const int answer = exec();
    return answer == 0 ? CloseAnswer::Cancel : static_cast<CloseAnswer>(answer);
}

} // namespace tolvo
