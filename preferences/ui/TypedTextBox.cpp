// SPDX-License-Identifier: MIT
#include "preferences/ui/TypedTextBox.h"

#include "widgets/FoldingChoice.h"

#include <QBoxLayout>
#include <QCheckBox>

namespace tolvo {

namespace {

struct Row {
    const char *name;
    const char16_t *caption;
    bool TypedTextOptions::*member;
};

constexpr std::array<Row, 5> rows{
    {{"chkSkipDigits", u"Skip &words with digits", &TypedTextOptions::skipDigits},
     {"chkSkipCapitals", u"Skip words in &capitals", &TypedTextOptions::skipCapitals},
     {"chkSkipAddresses", u"Skip web and &mail addresses", &TypedTextOptions::skipAddresses},
     {"chkSkipFileNames", u"Skip &file names", &TypedTextOptions::skipFileNames},
     {"chkCurlyApostrophe", u"&In British English too, take \u2019 for an apostrophe",
      &TypedTextOptions::curlyApostrophe}}};

} // namespace

TypedTextBox::TypedTextBox(QWidget *parent) : QGroupBox(QStringLiteral("Check as typed text"), parent) {
    setObjectName(QStringLiteral("fraTypedText"));
    auto *column = new QVBoxLayout(this);
    for (std::size_t i = 0; i < rows.size(); ++i) {
        m_boxes[i] = new FoldingChoice<QCheckBox>(QString::fromUtf16(rows[i].caption), this);
        m_boxes[i]->setObjectName(QLatin1StringView(rows[i].name));
        column->addWidget(m_boxes[i]);
    }
}

void TypedTextBox::showOptions(const TypedTextOptions &options) {
    for (std::size_t i = 0; i < rows.size(); ++i)
        m_boxes[i]->setChecked(options.*rows[i].member);
}

TypedTextOptions TypedTextBox::options() const {
    TypedTextOptions options;
    for (std::size_t i = 0; i < rows.size(); ++i)
        options.*rows[i].member = m_boxes[i]->isChecked();
    return options;
}

} // namespace tolvo
