// SPDX-License-Identifier: MIT
#include "platform/desktop/FontDialog.h"

#include "platform/desktop/font_conversion.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QFontComboBox>
#include <QFontInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace tolvo {

namespace {

/// Points, with as many decimals as there are: "8.25", "10".
class SizeBox : public QDoubleSpinBox {
  public:
    explicit SizeBox(QWidget *parent) : QDoubleSpinBox(parent) {
        setDecimals(2);
        setRange(1, 999);
    }
    [[nodiscard]] QString textFromValue(double value) const override {
        return locale().toString(value, 'g', QLocale::FloatingPointShortest);
    }
};

template <class Control>
Control *named(Control *control, const char *name) {
    control->setObjectName(QLatin1StringView(name));
    return control;
}

} // namespace

FontDialog::FontDialog(const Font &font, QWidget *parent)
    : QDialog(parent), m_given(font), m_shownFamily(QFontInfo(toQFont(font)).family()),
      cmbFamily(named(new QFontComboBox(this), "cmbFamily")), txtSize(named(new SizeBox(this), "txtSize")),
      chkBold(named(new QCheckBox(QStringLiteral("&Bold"), this), "chkBold")),
      chkItalic(named(new QCheckBox(QStringLiteral("&Italic"), this), "chkItalic")),
      txtSample(named(new QLineEdit(QStringLiteral("The quick brown fox, 0123456789"), this), "txtSample")) {
    setObjectName(QStringLiteral("cmnDialog"));
    setWindowTitle(QStringLiteral("Choose font"));
    cmbFamily->setEditable(false);
    cmbFamily->setWritingSystem(QFontDatabase::Latin);
    cmbFamily->setCurrentFont(QFont(m_shownFamily));
    txtSize->setValue(font.size > 0 ? font.size : fromQFont(toQFont(font)).size);
    chkBold->setChecked(font.bold);
    chkItalic->setChecked(font.italic);
    txtSample->setAccessibleName(QStringLiteral("Sample"));
    layOut();
    connect(cmbFamily, &QFontComboBox::currentFontChanged, this, &FontDialog::showSample);
    connect(txtSize, &QDoubleSpinBox::valueChanged, this, &FontDialog::showSample);
    connect(chkBold, &QCheckBox::toggled, this, &FontDialog::showSample);
    connect(chkItalic, &QCheckBox::toggled, this, &FontDialog::showSample);
    showSample();
}

void FontDialog::layOut() {
    auto *style = new QHBoxLayout;
    style->addWidget(chkBold);
    style->addWidget(chkItalic);
    style->addStretch(1);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    named(buttons->button(QDialogButtonBox::Ok), "OKButton")->setDefault(true);
    named(buttons->button(QDialogButtonBox::Cancel), "CancelButton");
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto *form = new QFormLayout(this);
    form->addRow(QStringLiteral("&Font:"), cmbFamily);
    if (m_shownFamily.compare(m_given.name, Qt::CaseInsensitive) != 0) {
        auto *note = named(new QLabel(QStringLiteral("%1 is not installed here: %2 stands in for it.")
                                          .arg(m_given.name, m_shownFamily),
                                      this),
                           "labStandIn");
        note->setTextFormat(Qt::PlainText);
        note->setWordWrap(true);
        form->addRow(QString(), note);
    }
    form->addRow(QStringLiteral("&Size:"), txtSize);
    form->addRow(QString(), style);
    form->addRow(txtSample);
    form->addRow(buttons);
    txtSample->setMinimumHeight(fontMetrics().height() * 3);
    resize(fontMetrics().averageCharWidth() * 60, sizeHint().height());
}

Font FontDialog::font() const {
    const QString family = cmbFamily->currentFont().family();
    return {.name = family == m_shownFamily ? m_given.name : family,
            .size = txtSize->value(),
            .bold = chkBold->isChecked(),
            .italic = chkItalic->isChecked()};
}

void FontDialog::showSample() {
    txtSample->setFont(toQFont(font()));
}

} // namespace tolvo
