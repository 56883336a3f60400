// SPDX-License-Identifier: MIT
// The row under the whole window: status and hint at the left; selection, place, length and line ends of the
// text at the right.
#pragma once

#include "shell/text_facts.h"

#include <QPalette>
#include <QWidget>
#include <functional>
#include <optional>

class QHBoxLayout;
class QLabel;
class QToolButton;

namespace tolvo {

class ElidedLabel;

class StatusBar : public QWidget {
    Q_OBJECT
  public:
    /// `corner` stands at the right end.
    explicit StatusBar(QWidget *corner);

    /// Shows the status and has it announced to screen readers. An empty one takes the hint away as well.
    void showStatus(const QString &text);
    /// Shows the hint after the status.
    void showHint(const QString &text);
    void showFacts(const TextFacts &facts);
    /// The line ends with which the text leaves: LF alone, or CR LF.
    void showLineEnds(bool lineFeeds);

    /// The size of the text in percent; nothing is shown for its own size.
    void showZoom(int percent);

    std::function<void()> onGoToLine; ///< the place was clicked
    std::function<void()> onOwnSize;  ///< the size was clicked

  protected:
    void changeEvent(QEvent *event) override;

  private:
    /// A part at the right, after a thin line.
    QWidget *addPart(QHBoxLayout &layout, QWidget *content);
    QLabel *label(const char *name);
    QToolButton *button(const char *name, const QString &tip, std::function<void()> StatusBar::*clicked);
    void dress();

    ElidedLabel *m_labStatus;
    ElidedLabel *m_labHint;
    QToolButton *m_cmdZoom;
    QLabel *m_labSelected;
    QToolButton *m_cmdPlace;
    QLabel *m_labLength;
    QLabel *m_labLineEnds;
    QWidget *m_zoomPart;
    QWidget *m_selectedPart;
    std::optional<TextFacts> m_facts; ///< as they are shown
};

/// The colour of a length on the windows of a palette: readable in light and dark.
[[nodiscard]] QColor fillColor(Fill fill, const QPalette &palette);

} // namespace tolvo
