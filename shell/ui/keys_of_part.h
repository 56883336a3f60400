// SPDX-License-Identifier: MIT
#pragma once

#include <QKeySequence>
#include <QList>
#include <QObject>
#include <QPointer>
#include <utility>

class QAbstractButton;
class QShortcut;
class QWidget;

namespace tolvo {

/// Lets the keys of one part of a window be its own: while the focus is in the part, no letter of a caption
/// and no shortcut of the rest is served. Those of the part are served only while the focus is there, as it
/// is a Qt::SubWindow.
class KeysOfPart final : public QObject {
    Q_OBJECT

  public:
    /// Both outlive this.
    KeysOfPart(const QWidget &window, const QWidget &part);
    ~KeysOfPart() override;

  private:
    void follow(const QWidget *focused);
    [[nodiscard]] bool isOther(const QWidget &widget) const;
    void silenceOthers();
    void restoreOthers();

    const QWidget &m_window;
    const QWidget &m_part;
    bool m_silent = false;
    QList<std::pair<QPointer<QAbstractButton>, QKeySequence>> m_letters;
    QList<QPointer<QShortcut>> m_shortcuts;
};

/// While it lives, a part of a window takes all clicks and keys that are meant for the window: what a modal
/// window would do.
class OnlyPart final : public QObject {
    Q_OBJECT

  public:
    explicit OnlyPart(const QWidget &part);

  protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

  private:
    const QWidget &m_part;
};

} // namespace tolvo
