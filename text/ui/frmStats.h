// SPDX-License-Identifier: MIT
#pragma once

#include "text/statistics.h"

#include <QDialog>

class QTreeWidget;

namespace tolvo {

class MessageBoxes;

/// The statistics of the full text and the selection, side by side.
class frmStats : public QDialog {
    Q_OBJECT

  public:
    frmStats(MessageBoxes &boxes, const TextStatistics &statistics, QWidget *parent = nullptr);

  private:
    void fill(const TextStatistics &statistics);
    /// The list shows all it holds without a scroll bar.
    void fitList();

    QTreeWidget *m_list;
};

} // namespace tolvo
