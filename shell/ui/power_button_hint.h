// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

namespace tolvo {

class HintStrip;
class MainWindow;
class frmMain;

/// Tells somebody who has no PowerButton yet what they are for, in a line above their row, and loads the
/// examples on demand. Closed by its button, it never comes back.
class PowerButtonHint : public QObject {
    Q_OBJECT
  public:
    /// Both must outlive the hint.
    PowerButtonHint(frmMain &session, MainWindow &window);
    ~PowerButtonHint() override;

    /// Shows the line or hides it, as the PowerButtons are.
    void refresh();

  private:
    void makeLine();
    void close();

    frmMain &m_session;
    MainWindow &m_window;
    HintStrip *m_line = nullptr; ///< made if it is ever needed
};

} // namespace tolvo
