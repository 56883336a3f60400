// SPDX-License-Identifier: MIT
#include "text/ui/dialog_fields.h"

#include "widgets/FoldingChoice.h"
#include "widgets/NumberBox.h"

#include <QComboBox>

namespace tolvo {

QCheckBox *makeCheck(const QString &name, const QString &caption, QWidget *parent) {
    auto *check = new FoldingChoice<QCheckBox>(caption, parent);
    check->setObjectName(name);
    return check;
}

QLineEdit *makeLine(const QString &name, QWidget *parent) {
    auto *line = new QLineEdit(parent);
    line->setObjectName(name);
    return line;
}

QStringList orderNames() {
    return {
        QStringLiteral("Dictionary: a10, a2, B"), QStringLiteral("Dictionary, numbers by value: a2, a10, B"),
        QStringLiteral("Number at the beginning: 9 b, 10 a"), QStringLiteral("Character codes: B, a10, a2")};
}

void whenAnythingChanges(const QWidget &dialog, const QObject *context, const std::function<void()> &then) {
    for (auto *button : dialog.findChildren<QAbstractButton *>())
        QObject::connect(button, &QAbstractButton::toggled, context, then);
    for (auto *field : dialog.findChildren<QLineEdit *>())
        QObject::connect(field, &QLineEdit::textChanged, context, then);
    for (auto *number : dialog.findChildren<NumberBox *>())
        QObject::connect(number, &NumberBox::changed, context, then);
    for (auto *list : dialog.findChildren<QComboBox *>())
        QObject::connect(list, &QComboBox::currentTextChanged, context, then);
}

} // namespace tolvo
