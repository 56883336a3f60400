// SPDX-License-Identifier: MIT
// The main window: lays out its controls and passes what the user does to the session. It decides nothing.
#pragma once

#include "platform/desktop/PlainTextBox.h"
#include "shell/keyboard.h"
#include "shell/ui/panel_view.h"
#include "shell/ui/power_button_bar.h"

#include <QWidget>
#include <functional>
#include <optional>

class QAction;
class QKeyEvent;
class QLabel;
class QPushButton;
class QToolButton;

namespace tolvo {

class frmMain;
class cToolbox;

class MainWindow : public QWidget {
    Q_OBJECT
  public:
    explicit MainWindow(QWidget *parent = nullptr);

    /// From here on the controls reach the session.
    void attach(frmMain &session, cToolbox &toolbox);

    [[nodiscard]] PlainTextBox &txtText1() { return *m_txtText1; }
    [[nodiscard]] PlainTextBox &txtTextWW() { return *m_txtTextWW; }
    [[nodiscard]] PlainTextBox &shownTextBox();
    [[nodiscard]] PanelView &panel() { return *m_panel; }
    [[nodiscard]] PowerButtonBar &powerButtons() { return *m_powerButtons; }

    void showStatus(const QString &text);
    void showUndoRedo(bool undoEnabled, bool redoEnabled);
    void showTextBox(bool wrapped);

    /// Waits while window events go on (the panel's animation).
    static void delay(int milliseconds);

    std::function<void()> onActivated; ///< each time the window becomes active
    std::function<void()> onClosed;    ///< the close box was used and the session agreed

  protected:
    void closeEvent(QCloseEvent *event) override;
    void changeEvent(QEvent *event) override;
    bool event(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

  private:
    QWidget *topBar();
    QWidget *textArea();
    QWidget *powerRow();
    QWidget *buttonRow();
    QWidget *statusRow();
    QToolButton *imageButton(const char *name, const char *icon, const QString &tip,
                             std::function<void(bool)> clicked);
    QPushButton *button(const char *name, const QString &caption, const QString &tip,
                        std::function<void()> clicked);
    void arrangeTabOrder();
    void offerUndoInTextBoxes();
    void showElidedStatus();
    void connectAltLetters();
    bool leaveTextBox(const QKeyEvent &event);
    bool keyPressed(const QKeyEvent &event, bool inTextBox);

    frmMain *m_session = nullptr;
    cToolbox *m_toolbox = nullptr;
    std::optional<KeyboardCommands> m_keys;

    PanelView *m_panel;
    PowerButtonBar *m_powerButtons;
    PlainTextBox *m_txtText1 = nullptr;
    PlainTextBox *m_txtTextWW = nullptr;
    QLabel *m_labStatus = nullptr;
    QString m_status;
    QToolButton *m_imgWordwrap = nullptr;
    QPushButton *m_cmdUndo = nullptr;
    QPushButton *m_cmdRedo = nullptr;
    QAction *m_undoAction = nullptr;
    QAction *m_redoAction = nullptr;
};

} // namespace tolvo
