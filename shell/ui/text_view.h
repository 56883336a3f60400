// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QTimer>
#include <array>
#include <span>

class QAction;
class QKeyEvent;

namespace tolvo {

class ClipboardLineEnds;
class PlainTextBox;
class StatusBar;
class frmMain;

/// How the text is looked at: keeps the facts in the status bar true, goes to a line, shows the text larger
/// or smaller and with marks for spaces. Nothing here changes the text or the fonts of the Options.
class TextView : public QObject {
    Q_OBJECT
  public:
    /// All must outlive the view, which the status bar owns.
    TextView(frmMain &session, std::array<PlainTextBox *, 2> boxes, StatusBar &statusBar,
             const ClipboardLineEnds &lineEnds);

    /// Brings the facts up to date once the present event is over.
    void refresh() { m_refresh.start(); }
    /// A key of the view, held with Ctrl.
    struct Key {
        Qt::Key key;
        bool mayHoldShift;     ///< some layouts have the sign there
        const char16_t *names; ///< null for another way to the key before
        const char16_t *does;
        void (TextView::*run)();
    };
    [[nodiscard]] static std::span<const Key> keys();
    /// Carries out a key of the view. Only keys that the session has no use for may come here.
    [[nodiscard]] bool keyPressed(const QKeyEvent &event);
    /// Asks for the number of a line and puts the caret at its start.
    void goToLine();
    /// Shows the text in that many percent of its own size, and stores the choice.
    void zoomTo(int percent);
    /// Shows marks or not, and stores the choice.
    void showMarks(bool on);

  private:
    void larger();
    void smaller();
    void showOwnSize();
    void invertMarks() { showMarks(!m_marks); }
    void offerInMenu();
    void applyZoom();
    void applyMarks();
    void showFacts();

    frmMain &m_session;
    std::array<PlainTextBox *, 2> m_boxes;
    StatusBar &m_statusBar;
    const ClipboardLineEnds &m_lineEnds;
    QAction *m_marksAction = nullptr;
    int m_zoom;
    bool m_marks;
    QTimer m_refresh; ///< one reading for all changes of one event
};

} // namespace tolvo
