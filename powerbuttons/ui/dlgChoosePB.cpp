// SPDX-License-Identifier: MIT
#include "powerbuttons/ui/dlgChoosePB.h"

#include "base/CParams.h"
#include "powerbuttons/circular_check.h"
#include "powerbuttons/editor_rules.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>
#include <algorithm>
#include <limits>

namespace tolvo {

namespace {

/// Shows any number, so that a stored one of no button is seen as it is; the up-down goes through the
/// buttons.
class NumberBox : public QSpinBox {
  public:
    explicit NumberBox(QWidget *parent) : QSpinBox(parent) {
        setObjectName(QStringLiteral("VScroll1"));
        lineEdit()->setObjectName(QStringLiteral("txtButtonNumber"));
        setRange(std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
    }

  protected:
    void stepBy(int steps) override {
        setValue(static_cast<int>(std::clamp<qint64>(qint64{value()} + steps, 1, last)));
        selectAll();
    }
    [[nodiscard]] StepEnabled stepEnabled() const override {
        return (value() > 1 ? StepDownEnabled : StepNone) | (value() < last ? StepUpEnabled : StepNone);
    }

  private:
    static constexpr int last = CPowerButtonCollection::buttonCount;
};

} // namespace

dlgChoosePB::dlgChoosePB(const CPowerButtonCollection &buttons, QWidget *parent)
    : QDialog(parent), m_buttons(buttons), m_number(new NumberBox(this)), m_name(new QLineEdit(this)),
      m_refusal(new QLabel(QStringLiteral("You cannot add a button to itself"), this)) {
    setObjectName(QStringLiteral("dlgChoosePB"));
    setWindowTitle(QStringLiteral("Choose PowerButton"));
    m_name->setObjectName(QStringLiteral("txtName"));
    m_name->setReadOnly(true);
    m_name->setFocusPolicy(Qt::NoFocus);
    m_name->setMinimumWidth(fontMetrics().averageCharWidth() * 32);
    m_refusal->setObjectName(QStringLiteral("labAddToItself"));
    QSizePolicy keepsPlace = m_refusal->sizePolicy();
    keepsPlace.setRetainSizeWhenHidden(true);
    m_refusal->setSizePolicy(keepsPlace);

    auto *buttonsBox = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    m_ok = buttonsBox->button(QDialogButtonBox::Ok);
    m_ok->setObjectName(QStringLiteral("OKButton"));
    buttonsBox->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("CancelButton"));
    connect(buttonsBox, &QDialogButtonBox::accepted, this, &dlgChoosePB::accept);
    connect(buttonsBox, &QDialogButtonBox::rejected, this, &dlgChoosePB::reject);
    connect(m_number, &QSpinBox::valueChanged, this, &dlgChoosePB::follow);

    auto *form = new QFormLayout;
    form->addRow(QStringLiteral("Power&Button:"), m_number);
    form->addRow(QStringLiteral("Name:"), m_name);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(m_refusal);
    layout->addStretch();
    layout->addWidget(buttonsBox);
}

bool dlgChoosePB::showDialog(QString &settings, int own) {
    m_own = own;
    int number = CParams(settings).arg(powerButtonKey).toInt();
    // Nothing chosen yet: the first that can be.
    for (int candidate = 1; number == 0 && candidate <= CPowerButtonCollection::buttonCount; ++candidate) {
        if (mayChoosePowerButton(m_buttons, candidate, own))
            number = candidate;
    }
    m_number->setValue(number == 0 ? 1 : number);
    follow();
    m_number->setFocus();
    m_number->selectAll();
    if (exec() != QDialog::Accepted)
        return false;
    settings = powerButtonKey + u'=' + QString::number(m_number->value());
    return true;
}

void dlgChoosePB::follow() {
    const int number = m_number->value();
    const auto button = m_buttons.Item(number);
    m_name->setText(button ? button->Name : QString());
    m_ok->setEnabled(mayChoosePowerButton(m_buttons, number, m_own));
    m_refusal->setVisible(number == m_own);
}

} // namespace tolvo
