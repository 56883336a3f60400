// SPDX-License-Identifier: MIT
#pragma once

#include "platform/font.h"

#include <QDialog>

class QCheckBox;
class QDoubleSpinBox;
class QFontComboBox;
class QLineEdit;

namespace tolvo {

/// Asks for a font. It offers what a Font keeps (name, size, bold, italic) and nothing that would be dropped.
class FontDialog : public QDialog {
    Q_OBJECT
  public:
    /// Opens on the font that shows for `font`, which may be another than it names.
    explicit FontDialog(const Font &font, QWidget *parent = nullptr);

    /// The choice. Unless another family was chosen, the name is the one that was handed in, installed here
    /// or not.
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
