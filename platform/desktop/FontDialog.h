// SPDX-License-Identifier: MIT
#pragma once

#include "platform/font.h"

#include <QDialog>

class QCheckBox;
class QDoubleSpinBox;
class QFontComboBox;
class QLineEdit;

namespace tolvo {

/// Asks for a font. Offers only what a Font keeps: name, size, bold, italic.
class FontDialog : public QDialog {
    Q_OBJECT
  public:
    /// Opens on the font that shows for `font`, which may be another than it names.
    explicit FontDialog(const Font &font, QWidget *parent = nullptr);

    /// The choice. Unless the user chose another family, the name stays the given one, installed here or not.
    [[nodiscard]] Font font() const;

  private:
    void layOut();
    void showSample();

    Font m_given;
    QString m_shownFamily; ///< stands in for the family of m_given
    QFontComboBox *cmbFamily;
    QDoubleSpinBox *txtSize;
    QCheckBox *chkBold;
    QCheckBox *chkItalic;
    QLineEdit *txtSample;
};

} // namespace tolvo
