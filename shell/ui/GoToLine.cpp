// SPDX-License-Identifier: MIT
#include "shell/ui/GoToLine.h"

#include "base/numbers.h"
#include "shell/ui/status_bar.h"
#include "widgets/NumberBox.h"
#include "widgets/announce.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>

namespace tolvo {

GoToLine::GoToLine(int lines, int present, QWidget *parent)
    : QDialog(parent), m_lines(lines),
      m_number(new NumberBox(QStringLiteral("txtLine"),
                             QStringLiteral("Line (1 to %1)").arg(groupedNumber(lines)),
                             {.lowest = 1, .highest = lines, .testedLater = true}, this)),
      m_refusal(new QLabel(this)) {
    setObjectName(QStringLiteral("dlgGoToLine"));
    setWindowTitle(QStringLiteral("Go to line"));
    auto *caption = new QLabel(QStringLiteral("&Line (1 to %1):").arg(groupedNumber(lines)), this);
    caption->setBuddy(m_number);
    m_number->setValue(present);
    m_refusal->setObjectName(QStringLiteral("labRefusal"));
    QPalette colours = m_refusal->palette();
    colours.setColor(QPalette::WindowText, fillColor(Fill::Full, palette()));
    m_refusal->setPalette(colours);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &GoToLine::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &GoToLine::reject);
    connect(m_number, &NumberBox::edited, m_refusal, &QLabel::clear);

    auto *layout = new QGridLayout(this);
    layout->setContentsMargins(18, 18, 18, 14);
    layout->setVerticalSpacing(12);
    layout->addWidget(caption, 0, 0);
    layout->addWidget(m_number, 0, 1);
    layout->addWidget(m_refusal, 1, 0, 1, 2);
    layout->addWidget(buttons, 2, 0, 1, 2);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    m_number->begin();
}

int GoToLine::line() const {
    return m_number->value();
}

void GoToLine::accept() {
    if (line() >= 1 && line() <= m_lines) {
        QDialog::accept();
        return;
    }
    m_refusal->setText(m_lines == 1 ? QStringLiteral("The text has one line.")
                                    : QStringLiteral("The text has %1 lines.").arg(groupedNumber(m_lines)));
    announce(m_refusal, m_refusal->text());
    m_number->begin();
}

} // namespace tolvo
