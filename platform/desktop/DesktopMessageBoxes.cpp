// SPDX-License-Identifier: MIT
#include "platform/desktop/DesktopMessageBoxes.h"

#include "base/application.h"
#include "platform/box_text.h"

#include <QApplication>
#include <QMessageBox>

namespace tolvo {

namespace {

QMessageBox::Icon iconOf(BoxIcon icon) {
    switch (icon) {
    case BoxIcon::None:
        return QMessageBox::NoIcon;
    case BoxIcon::Information:
        return QMessageBox::Information;
    case BoxIcon::Exclamation:
        return QMessageBox::Warning;
    case BoxIcon::Question:
        return QMessageBox::Question;
    case BoxIcon::Critical:
        return QMessageBox::Critical;
    }
    return QMessageBox::NoIcon;
}

} // namespace

BoxAnswer DesktopMessageBoxes::show(const Box &box) {
    QMessageBox window(QApplication::activeWindow());
    window.setObjectName(QStringLiteral("MessageBox"));
    window.setWindowTitle(box.title.isEmpty() ? applicationTitle() : box.title);
    window.setIcon(iconOf(box.icon));
    window.setTextFormat(Qt::PlainText);
    window.setText(boxText(box.text));
    if (box.buttons == BoxButtons::Ok) {
        window.setStandardButtons(QMessageBox::Ok);
        window.exec();
        return BoxAnswer::Ok;
    }
    window.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    window.setDefaultButton(QMessageBox::No);
    window.setEscapeButton(QMessageBox::No);
    return window.exec() == QMessageBox::Yes ? BoxAnswer::Yes : BoxAnswer::No;
}

} // namespace tolvo
