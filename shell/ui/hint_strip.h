// SPDX-License-Identifier: MIT
// A quiet line in the main window: a few words, buttons that act on them, and one that closes the line.
#pragma once

#include <QAbstractButton>
#include <QList>
#include <QString>
#include <functional>

namespace tolvo {

class ElidedLabel;

/// A button of words on a light tint.
class HintButton final : public QAbstractButton {
    Q_OBJECT
  public:
    explicit HintButton(QWidget *parent);
    [[nodiscard]] QSize sizeHint() const override;

    std::function<void()> onPointed; ///< pointer or focus came or went

  protected:
    void changeEvent(QEvent *event) override;
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
};

/// Takes no width of its own: what doesn't fit is left out, from the end. Hidden until it has buttons.
class HintStrip final : public QWidget {
    Q_OBJECT
  public:
    struct Button {
        QString words;
        QString explanation; ///< its tool tip, and what a screen reader adds
    };

    /// `name` is the object name, with "_0", "_1" and so on those of the buttons. `keys` filters the events
    /// of all buttons, as the main window does for its own.
    HintStrip(const QString &name, const QString &words, const QString &closeTip, QObject *keys);

    /// Shows the line with these buttons; without any, hides it.
    void setButtons(const QList<Button> &buttons);
    /// What the line says, in one sentence.
    [[nodiscard]] QString sentence() const;

    std::function<void(int)> onClick;
    std::function<void(int)> onPointed; ///< at a button, by pointer or focus; -1 for none
    std::function<void()> onClose;

  protected:
    void resizeEvent(QResizeEvent *event) override;

  private:
    HintButton *addButton();
    void leaveOutWhatDoesNotFit();
    void reportPointed();

    ElidedLabel *m_label;
    QAbstractButton *m_close;
    QObject *m_keys;
    QList<HintButton *> m_buttons; ///< made when first needed
    qsizetype m_used = 0;          ///< how many of them have words
    int m_pointed = -1;
};

} // namespace tolvo
