// SPDX-License-Identifier: MIT
#include "text/ui/dialog_parts.h"

#include "platform/desktop/font_conversion.h"
#include "widgets/FoldingChoice.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace tolvo {

SampleBox::SampleBox(int rows, QWidget *parent) : QPlainTextEdit(parent), m_rows(rows) {
    setObjectName(QStringLiteral("txtSample"));
    setReadOnly(true);
    setUndoRedoEnabled(false);
    setFocusPolicy(Qt::ClickFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored); // no taller than its rows at first
    fitRows();
}

void SampleBox::setSampleFont(const Font &font) {
    setFont(toQFont(font));
    fitRows();
}

void SampleBox::fitRows() {
    const QFontMetrics metrics(font());
    setTabStopDistance(metrics.horizontalAdvance(u' ') * 8);
    const int frame = 2 * (frameWidth() + static_cast<int>(document()->documentMargin()));
    setMinimumHeight(metrics.lineSpacing() * m_rows + frame);
    setMinimumWidth(metrics.averageCharWidth() * 40);
}

QButtonGroup *makeOptions(const QString &name, const QStringList &captions, QWidget *parent) {
    auto *group = new QButtonGroup(parent);
    for (int i = 0; i < captions.size(); ++i) {
        auto *button = new FoldingChoice<QRadioButton>(captions.at(i), parent);
        button->setObjectName(name + u'_' + QString::number(i));
        button->setChecked(i == 0);
        group->addButton(button, i);
    }
    return group;
}

QLabel *labelFor(QWidget *control, const QString &caption) {
    auto *label = new QLabel(caption, control->parentWidget());
    label->setBuddy(control);
    if (control->accessibleName().isEmpty())
        control->setAccessibleName(QString(caption).remove(u'&').remove(u':'));
    return label;
}

void finishDialog(QDialog &dialog, const QString &name, const QString &caption, QLayout *contents) {
    dialog.setObjectName(name);
    dialog.setWindowTitle(caption);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, &dialog);
    buttons->button(QDialogButtonBox::Ok)->setObjectName(QStringLiteral("OKButton"));
    buttons->button(QDialogButtonBox::Ok)->setDefault(true);
    buttons->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("CancelButton"));
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    auto *layout = new QVBoxLayout(&dialog);
    layout->addLayout(contents, 1);
    layout->addWidget(buttons);
}

} // namespace tolvo
