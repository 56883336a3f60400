// SPDX-License-Identifier: MIT
#pragma once

#include "companions/refresh.h"

#include <QDialog>

class QLabel;
class QProgressBar;
class QPushButton;

namespace tolvo {

/// The small window of Refresher.exe: waiting, then what came of it.
class RefreshWindow final : public QDialog {
    Q_OBJECT

  public:
    explicit RefreshWindow(QWidget *parent = nullptr);

    void showOutcome(const RefreshOutcome &outcome);

  private:
    QLabel *m_text;
    QProgressBar *m_progress;
    QPushButton *m_download;
    QString m_address;
};

} // namespace tolvo
