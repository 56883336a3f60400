// SPDX-License-Identifier: MIT
#include "widgets/NumberBox.h"

#include "base/numbers.h"

#include <QLineEdit>
#include <QStyleOptionSpinBox>
#include <algorithm>

namespace tolvo {

namespace {

constexpr int smallestInt = std::numeric_limits<int>::min();
constexpr int largestInt = std::numeric_limits<int>::max();

} // namespace

NumberBox::NumberBox(const QString &name, const QString &meaning, Limits limits, QWidget *parent)
    : QAbstractSpinBox(parent), m_limits(limits) {
    lineEdit()->setObjectName(name);
    setAccessibleName(meaning);
    lineEdit()->setAccessibleName(meaning);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    connect(lineEdit(), &QLineEdit::textChanged, this, [this] {
        updateGeometry();
        emit changed();
    });
    connect(lineEdit(), &QLineEdit::textEdited, this, &NumberBox::edited);
    connect(this, &QAbstractSpinBox::editingFinished, this, &NumberBox::leave);
}

int NumberBox::value() const {
    const int number = static_cast<int>(std::clamp(ValueOf(text()), double{smallestInt}, double{largestInt}));
    return m_limits.testedLater || text() == m_set ? number : std::max(number, m_limits.lowest);
}

void NumberBox::setValue(int value) {
    m_set = QString::number(std::min(value, highestTyped()));
    lineEdit()->setText(m_set);
}

void NumberBox::begin() {
    setFocus();
    selectAll();
}

QSize NumberBox::sizeHint() const {
    const qsizetype usual = m_limits.highest > 99 ? 5 : 3;
    const qsizetype characters = std::max(text().size(), usual) + 1; // one for the caret at the end
    const QSize text(fontMetrics().horizontalAdvance(u'0') * static_cast<int>(characters),
                     lineEdit()->sizeHint().height());
    QStyleOptionSpinBox option;
    initStyleOption(&option);
    return style()->sizeFromContents(QStyle::CT_SpinBox, &option, text, this);
}

int NumberBox::highestTyped() const {
    return m_limits.testedLater ? largestInt : m_limits.highest;
}

QValidator::State NumberBox::validate(QString &input, int &position) const {
    if (input == m_set)
        return QValidator::Acceptable;
    QString kept;
    int before = 0;
    for (qsizetype i = 0; i < input.size(); ++i) {
        const QStringView character = QStringView(input).sliced(i, 1);
        if (!IsNumber(character) && !(m_limits.takesMinus && kept.isEmpty() && character == u"-"))
            continue;
        kept += character;
        before += i < position ? 1 : 0;
    }
    kept = ValueOf(kept) > highestTyped() ? QString::number(highestTyped())
           : ValueOf(kept) < smallestInt  ? QString::number(smallestInt)
                                          : kept;
    input = kept;
    position = std::min(before, static_cast<int>(kept.size()));
    return QValidator::Acceptable;
}

void NumberBox::stepBy(int steps) {
    setValue(
        static_cast<int>(std::clamp<qint64>(qint64{value()} + steps, m_limits.lowest, m_limits.highest)));
    selectAll();
    emit edited();
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
    if (!m_limits.testedLater && text() != QString::number(value()))
        setValue(value());
}

} // namespace tolvo
