// SPDX-License-Identifier: MIT
// Says over a fresh text what looks wrong with it, and offers the tools that mend it.
#pragma once

#include "platform/background_job.h"
#include "shell/text_troubles.h"

#include <QObject>
#include <QTimer>

namespace tolvo {

class HintStrip;
class MainWindow;
class PlainTextBox;
class frmMain;

/// The line comes after the text has been taken in, and goes with the first key that types or by its close
/// button. While it stands it follows what tools make of the text. The text is looked at in the background,
/// and not before it has been painted for the first time.
class TroubleWatch : public QObject {
    Q_OBJECT
  public:
    /// Begins with the text as it is. Both must outlive the watch.
    TroubleWatch(frmMain &session, MainWindow &window);
    ~TroubleWatch() override;

    /// The clipboard's text is about to be the text.
    void freshText();
    /// Closes the line if the Options don't want it any more.
    void obeyOptions();

  protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

  private:
    void textChanged();
    void look();
    void show(const QList<Trouble> &troubles);
    void mend(int place);
    void mark(int place);
    void end(bool keepingPlace);

    frmMain &m_session;
    MainWindow &m_window;
    BackgroundJob m_job;
    HintStrip *m_line = nullptr; ///< made at the first trouble
    QTimer m_later;              ///< after the present event
    QList<Trouble> m_troubles;
    bool m_painted = false;
    bool m_watching = false; ///< from the intake on, as long as the line may stand
};

} // namespace tolvo
