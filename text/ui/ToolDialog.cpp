// SPDX-License-Identifier: MIT
#include "text/ui/ToolDialog.h"

#include "platform/message_box.h"

#include <QLineEdit>

namespace tolvo {

ToolDialog::ToolDialog(const ToolDialogContext &context)
    : QDialog(context.parent), m_engine(context.engine), m_boxes(context.boxes),
      m_sampleFont(context.sampleFont) {
}

void ToolDialog::fontChanged(const Font &font) {
    if (m_sample)
        m_sample->setSampleFont(font);
}

SampleBox *ToolDialog::makeSample(int rows) {
    m_sample = new SampleBox(rows, this);
    if (m_sampleFont)
        fontChanged(*m_sampleFont);
    return m_sample;
}

QComboBox *ToolDialog::makeTextList(const QString &name) {
    m_text = new QComboBox(this);
    m_text->setObjectName(name);
    m_text->setEditable(true);
    m_text->setInsertPolicy(QComboBox::NoInsert);
    m_text->setCompleter(nullptr); // it would put letters into a text that the user didn't type
    return m_text;
}

void ToolDialog::accept() {
    if (!m_forAction || !m_text || !usesText() || CParams::canHold(m_text->currentText())) {
        QDialog::accept();
        return;
    }
    m_boxes.show({CParams::refusal(QStringLiteral("Please enter another text")), BoxIcon::Information});
    m_text->setFocus();
    m_text->lineEdit()->selectAll();
}

} // namespace tolvo
