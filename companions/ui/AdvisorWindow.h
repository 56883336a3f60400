// SPDX-License-Identifier: MIT
#pragma once

#include "companions/tips.h"
#include "powerbuttons/catalogue.h"

#include <QDialog>
#include <QList>
#include <functional>

class QLabel;

namespace tolvo {

/// The window of Advisor.exe: one tip at a time. It never takes the focus when it appears.
class AdvisorWindow final : public QDialog {
    Q_OBJECT

  public:
    explicit AdvisorWindow(SettingsStore &store, QWidget *parent = nullptr);

    /// From here on the names of these tools are links in the tips; `run` gets the token of one that was
    /// clicked.
    void offerTools(const QList<Catalogue::PanelItem> &tools, std::function<void(const QString &)> run);
    /// Shows the window for the first time beside these areas of the screen; without any, anywhere.
    void showBeside(const QList<QRect> &areas);

  private:
    void showTip();
    [[nodiscard]] QWidget *makePage();

    TipWalk m_walk;
    QList<Catalogue::PanelItem> m_tools;
    QLabel *m_title;
    QLabel *m_text;
    QLabel *m_number;
};

} // namespace tolvo
