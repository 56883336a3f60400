// SPDX-License-Identifier: MIT
#include "text/ui/NumberBox.h"

#include "base/numbers.h"

#include <QLineEdit>
#include <QStyleOptionSpinBox>
#include <algorithm>

namespace tolvo {

NumberBox::NumberBox(const QString &name, const QString &meaning, Limits limits, QWidget *parent)
    : QAbstractSpinBox(parent), m_limits(limits) {
    lineEdit()->setObjectName(name);
    setAccessibleName(meaning);
    lineEdit()->setAccessibleName(meaning);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    connect(lineEdit(), &QLineEdit::textChanged, this, &NumberBox::changed);
    connect(this, &QAbstractSpinBox::editingFinished, this, &NumberBox::leave);
}

int NumberBox::value() const {
    return static_cast<int>(std::min(ValueOf(text()), 999999999.0));
}

void NumberBox::setValue(int value) {
    lineEdit()->setText(QString::number(value));
}

QSize NumberBox::sizeHint() const {
    const int digits = m_limits.highest > 99 ? 6 : 4;
    const QSize text(fontMetrics().horizontalAdvance(u'0') * digits, lineEdit()->sizeHint().height());
    QStyleOptionSpinBox option;
    initStyleOption(&option);
    return style()->sizeFromContents(QStyle::CT_SpinBox, &option, text, this);
}

QValidator::State NumberBox::validate(QString &input, int &position) const {
    QString digits;
    int before = 0;
    for (qsizetype i = 0; i < input.size(); ++i) {
        if (!IsNumber(QStringView(input).sliced(i, 1)))
            continue;
        digits += input.at(i);
        before += i < position ? 1 : 0;
    }
    const int highest = m_limits.testedLater ? Limits().highest : m_limits.highest;
    if (ValueOf(digits) > highest)
        digits = QString::number(highest);
    input = digits;
    position = std::min(before, static_cast<int>(digits.size()));
    return QValidator::Acceptable;
}

void NumberBox::stepBy(int steps) {
    setValue(std::clamp(value() + steps, m_limits.lowest, m_limits.highest));
    selectAll();
    emit stepped();
}

QAbstractSpinBox::StepEnabled NumberBox::stepEnabled() const {
    StepEnabled enabled = StepNone;
    if (value() > m_limits.lowest)
        enabled |= StepDownEnabled;
    if (value() < m_limits.highest)
        enabled |= StepUpEnabled;
    return enabled;
}

void NumberBox::leave() {
    if (!m_limits.testedLater && (text().isEmpty() || value() < m_limits.lowest))
        setValue(m_limits.lowest);
}

} // namespace tolvo
