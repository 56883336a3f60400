// SPDX-License-Identifier: MIT
// The main window: lays out its controls, shows what the session says and passes on what the user does. It
// decides nothing.
#pragma once

#include "platform/background_job.h"
#include "platform/desktop/PlainTextBox.h"
#include "shell/keyboard.h"
#include "shell/session_windows.h"
#include "shell/ui/panel_view.h"
#include "shell/ui/part_walk.h"
#include "shell/ui/power_button_bar.h"
#include "shell/ui/tool_finder_view.h"

#include <QPointer>
#include <QWidget>
#include <functional>
#include <optional>
#include <span>

class QAction;
class QKeyEvent;
class QMenu;
class QPushButton;
class QSplitter;
class QToolButton;

namespace tolvo {

class ChangeView;
class DockArea;
class ClipboardLineEnds;
class EscapeWatch;
class HistoryArrow;
class ImageButton;
class NamesUnderIcons;
class StatusBar;
class TextView;
class frmMain;
class cToolbox;

class MainWindow : public QWidget, public SessionView {
    Q_OBJECT
  public:
    /// `escape` notes the key Esc during long searches.
    explicit MainWindow(EscapeWatch &escape);

    /// From here on the controls reach the session.
    void attach(frmMain &session, cToolbox &toolbox, const ClipboardLineEnds &lineEnds);

    [[nodiscard]] PlainTextBox &txtText1() { return *m_txtText1; }
    [[nodiscard]] PlainTextBox &txtTextWW() { return *m_txtTextWW; }
    /// The one in use.
    [[nodiscard]] PlainTextBox &shownTextBox();
    /// Shows a hint where there is no text.
    void showEmptyTextHint(const QString &hint);
    [[nodiscard]] PanelView &panel() { return *m_panel; }
    [[nodiscard]] ChangeView &changeView() { return *m_changeView; }
    [[nodiscard]] ToolFinderView &toolFinder() { return *m_toolFinder; }
    /// The width of the column left of the text, in pixels.
    [[nodiscard]] int panelWidth() const;
    void setPanelWidth(int width);
    /// Shows a line of hints there, which belongs to the window from now on.
    void putOverText(QWidget &strip);
    void putOverPowerButtons(QWidget &strip);
    /// What the button beside the PowerButtons opens.
    void setPowerButtonMenu(QMenu &menu);
    void putUnderText(DockArea &area);
    /// For background work, here and in the dialogs.
    [[nodiscard]] BackgroundWorker &worker() { return m_worker; }

    // SessionView
    void statusChanged(const QString &text) override;
    void hintChanged(const QString &text) override;
    void toolChangedText(const ToolChange &change) override;
    void showTextBefore(const ToolChange *change) override;
    void undoRedoChanged(bool undoEnabled, bool redoEnabled) override;
    void showTextBox(bool wrapped) override;
    void setTextFont(bool wrapped, const Font &font) override;
    [[nodiscard]] Font textFont(bool wrapped) const override;
    void endSession() override;
    void bringToFront() override;
    void processEvents() override;
    void powerButtonChanged(int index) override;
    [[nodiscard]] bool interrupted() override;

    /// Waits while window events go on (the panel's animation).
    static void delay(int milliseconds);

    std::function<void()> onActivated; ///< each time the window becomes active
    std::function<void()> onPowerButtonChanged;
    /// A file was dropped on the PowerButton of an index from 0.
    std::function<void(int index, const QString &path)> onButtonFileDropped;
    std::function<void()> onClosed; ///< the session is over; the window still stands

  protected:
    void closeEvent(QCloseEvent *event) override;
    bool event(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

  private:
    QWidget *topBar();
    QWidget *textArea();
    QWidget *powerRow();
    QWidget *buttonRow();
    ImageButton *imageButton(const char *name, const char *icon, const QString &tip,
                             std::function<void(bool)> clicked);
    QPushButton *button(const char *name, const QString &caption, const QString &tip,
                        std::function<void()> clicked);
    QPushButton *prepare(QPushButton *result, const char *name, const QString &tip,
                         std::function<void()> clicked);
    void keepSmallestSize();
    void arrangeTabOrder();
    void offerUndoInTextBoxes();
    void connectAltLetters();
    struct OwnKey;
    [[nodiscard]] static std::span<const OwnKey> ownKeys();
    bool ownKeyPressed(const QKeyEvent &event);
    bool controlKeyPressed(const QKeyEvent &event);
    bool leaveTextBox(const QKeyEvent &event);
    void watchButtons();
    QList<WindowPart> parts();
    static void putBefore(QWidget &strip, QWidget &part);
    [[nodiscard]] bool isFocusInDock() const;
    void nextPart();
    void partBefore();
    void showKeySheet();
    void extendMenu(QMenu &menu);
    bool keyPressed(const QKeyEvent &event, bool inTextBox);

    EscapeWatch &m_escape;
    frmMain *m_session = nullptr;
    cToolbox *m_toolbox = nullptr;
    std::optional<KeyboardCommands> m_keys;

    BackgroundWorker m_worker;
    QSplitter *m_splitter = nullptr;
    QPointer<QWidget> m_overText; ///< the line of hints that stands there, if any
    QPointer<QWidget> m_overPowerButtons;
    QList<QPointer<DockArea>> m_underText;
    QWidget *m_topBar = nullptr;
    NamesUnderIcons *m_iconNames = nullptr;
    QWidget *m_textArea = nullptr;
    QWidget *m_powerRow = nullptr;
    QWidget *m_buttonRow = nullptr;
    PanelView *m_panel;
    ToolFinderView *m_toolFinder;
    PowerButtonBar *m_powerButtons;
    PlainTextBox *m_txtText1 = nullptr;
    PlainTextBox *m_txtTextWW = nullptr;
    StatusBar *m_statusBar = nullptr;
    ChangeView *m_changeView = nullptr;
    TextView *m_textView = nullptr; ///< once the session is there
    QToolButton *m_imgWordwrap = nullptr;
    ImageButton *m_cmdMore = nullptr;
    QPushButton *m_cmdUndo = nullptr;
    QPushButton *m_cmdRedo = nullptr;
    HistoryArrow *m_undoArrow = nullptr;
    HistoryArrow *m_redoArrow = nullptr;
    QAction *m_undoAction = nullptr;
    QAction *m_redoAction = nullptr;
};

} // namespace tolvo
