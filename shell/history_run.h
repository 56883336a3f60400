// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>
#include <memory>

namespace tolvo {

class CAction;
class frmMain;

/// What the user has run: a tool, a PowerButton, a replacement.
struct HistoryRun {
    QString name; ///< as a menu shows it: "Title Case", "PowerButton 3: Clean mail"
    bool powerButton = false;
    /// The tools that ran in it, with the settings that they ran with.
    QList<std::shared_ptr<CAction>> actions = {};
};

/// Every change of the text, for as long as this lives, is the doing of one run. One inside of another
/// belongs to the outer one.
class RunScope {
  public:
    RunScope(frmMain &session, const HistoryRun &run);
    ~RunScope();
    RunScope(const RunScope &) = delete;
    RunScope &operator=(const RunScope &) = delete;

  private:
    frmMain &m_session;
    bool m_outer; ///< no other one was there
};

} // namespace tolvo
