// SPDX-License-Identifier: MIT
#include "powerbuttons/ui/steps_view.h"

#include "powerbuttons/button_sharing.h"

#include <QPlainTextEdit>

namespace tolvo {

QPlainTextEdit *makeStepsView(const QString &objectName, const QString &accessibleName, QWidget *parent) {
    auto *view = new QPlainTextEdit(parent);
    view->setObjectName(objectName);
    view->setAccessibleName(accessibleName);
    view->setReadOnly(true);
    view->setTabChangesFocus(true);
    view->setLineWrapMode(QPlainTextEdit::NoWrap);
    view->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    const QFontMetrics letters = view->fontMetrics();
    view->setMinimumSize(letters.averageCharWidth() * 52, letters.lineSpacing() * 9);
    return view;
}

QString placeName(const CPowerButtonCollection &buttons, int number) {
    if (isEmptyPlace(buttons, number))
        return QStringLiteral("%1: empty").arg(number);
    const QString name = buttons.Item(number)->Name.simplified();
    return QStringLiteral("%1: ").arg(number) + name;
}

} // namespace tolvo
