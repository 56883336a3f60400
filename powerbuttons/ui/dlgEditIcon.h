// SPDX-License-Identifier: MIT
// The icon editor: up to three characters in a font, placed by hand on a preview.
#pragma once

#include "powerbuttons/icon_geometry.h"

#include <QDialog>
#include <QStringList>

class QLabel;
class QLineEdit;
class QScrollBar;
class QToolButton;

namespace tolvo {

class IconPreview;

class dlgEditIcon : public QDialog {
    Q_OBJECT
  public:
    /// `recentCharacters` is the memory of the character picker.
    explicit dlgEditIcon(QStringList &recentCharacters, QWidget *parent = nullptr);

    /// Shows the icon for editing. True if the user chose OK; `icon` is then the edited one.
    bool showDialog(ButtonIcon &icon);

  private:
    void makeControls();
    void arrange();
    QToolButton *makeArrow(const char *name, Qt::ArrowType arrow, const QString &accessibleName, double dx,
                           double dy);
    void repaintPreview();
    void setFont();
    void getSymbol();
    void centre();

    QStringList &m_recentCharacters;
    ButtonIcon m_icon;
    QLineEdit *m_symbol;
    QScrollBar *m_size;
    QLabel *m_fontLabel;
    IconPreview *m_preview;
    IconPreview *m_small;
};

} // namespace tolvo
