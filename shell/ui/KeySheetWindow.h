// SPDX-License-Identifier: MIT
#pragma once

#include "shell/key_sheet.h"

#include <QDialog>

class QLineEdit;
class QTreeWidget;

namespace tolvo {

/// The list of all keys by groups, with a field that filters it. Esc closes it.
class KeySheetWindow final : public QDialog {
    Q_OBJECT

  public:
    KeySheetWindow(QList<KeySheetRow> sheet, QWidget *parent);

  protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

  private:
    void fill(const QString &filter);
    void fitToScreen();

    QList<KeySheetRow> m_sheet;
    QLineEdit *m_filter;
    QTreeWidget *m_list;
};

} // namespace tolvo
