// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QTimer>
#include <array>

class QKeyEvent;

namespace tolvo {

class ClipboardLineEnds;
class PlainTextBox;
class StatusBar;
class frmMain;

/// How the text is looked at: keeps the facts in the status bar true, and walks to a line. Nothing here
/// changes the text.
class TextView : public QObject {
    Q_OBJECT
  public:
    /// All must outlive the view, which the status bar owns.
    TextView(frmMain &session, std::array<PlainTextBox *, 2> boxes, StatusBar &statusBar,
             const ClipboardLineEnds &lineEnds);

    /// Brings the facts up to date once the present event is over.
    void refresh() { m_refresh.start(); }
    /// Carries out a key of the view. Only keys that the session has no use for may come here.
    ///   Ctrl-G: go to a line
    [[nodiscard]] bool keyPressed(const QKeyEvent &event);
    /// Asks for the number of a line and puts the caret at its start.
    void goToLine();

  private:
    void showFacts();

    frmMain &m_session;
    std::array<PlainTextBox *, 2> m_boxes;
    StatusBar &m_statusBar;
    const ClipboardLineEnds &m_lineEnds;
    QTimer m_refresh; ///< one reading for all changes of one event
};

} // namespace tolvo
