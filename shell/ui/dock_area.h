// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QWidget>
#include <functional>
#include <memory>

class QDialog;
class QScrollArea;

namespace tolvo {

class ElidedLabel;
class KeysOfPart;

/// A strip inside the main window in which a window of its own lives, under its title and with a button that
/// closes it. The strip comes and goes with the window, and gives the focus back to the text.
class DockArea final : public QWidget {
    Q_OBJECT

  public:
    /// `focusText` is called when the window goes while it has the focus.
    DockArea(const QString &name, std::function<void()> focusText);
    ~DockArea() override;

    /// Takes the window in, hidden; the title offers its actions. The window loses its frame alone: Esc
    /// closes it, Tab goes round in it, its letters are served while the focus is in it, and those of the
    /// window around it are not.
    void take(QDialog &window);
    /// Makes it a window again, hidden, with `parent`.
    void release(QWidget &parent);
    [[nodiscard]] bool hasFocusInside() const;
    [[nodiscard]] QSize sizeHint() const override;

    std::function<void()> onShown; ///< the strip has taken its room

  protected:
    void showEvent(QShowEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

  private:
    QWidget *titleRow();

    std::function<void()> m_focusText;
    QPointer<QDialog> m_held;
    ElidedLabel *m_title;
    QWidget *m_page;
    QScrollArea *m_area;
    std::unique_ptr<KeysOfPart> m_keys;
};

} // namespace tolvo
