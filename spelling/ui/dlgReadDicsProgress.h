// SPDX-License-Identifier: MIT
// Three pages around the reading of Word's languages: what will happen, it happens, it has happened.
#pragma once

#include <QDialog>
#include <functional>

class QLabel;
class QPushButton;
class QStackedWidget;
class QTimer;

namespace tolvo {

class dlgReadDicsProgress : public QDialog {
  public:
    /// Asks its argument now and then whether the user has cancelled; false if it failed.
    using Work = std::function<bool(const std::function<bool()> &)>;

    explicit dlgReadDicsProgress(QWidget *parent = nullptr);

    /// Shows the pages and runs the work after the first one.
    void ShowMe(const Work &work);
    /// Whether the user has cancelled.
    [[nodiscard]] bool Cancel() const { return m_cancelled; }

    void reject() override;

  private:
    QWidget *page(const QStringList &paragraphs);
    void read();
    void finish(bool succeeded);

    Work m_work;
    bool m_reading = false;
    bool m_cancelled = false;
    int m_step = 0;
    QStackedWidget *m_pages;
    QLabel *imgAnimation;
    QTimer *Timer1;
    QPushButton *cmdNext;
    QPushButton *cmdFinish;
    QPushButton *cmdCancel;
};

} // namespace tolvo
