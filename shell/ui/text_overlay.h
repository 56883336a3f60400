// SPDX-License-Identifier: MIT
#pragma once

#include "platform/desktop/PlainTextBox.h"
#include "shell/text_state.h"

#include <QWidget>

class QLabel;

namespace tolvo {

/// Another text in the place of that of a text box, for the eye alone: it lies over the box, in its looks and
/// scrolled as it is, and takes neither focus nor keys. The text of the box is not touched.
class TextOverlay : public QWidget {
    Q_OBJECT
  public:
    /// Lies over `box`, which shows its lines as `lines` says, and goes with it. Hidden at first.
    TextOverlay(PlainTextBox &box, PlainTextBox::Lines lines);

    /// Shows a text with its selection, and says below it what it is: "Text before Title Case". The first
    /// time it is scrolled as the box is; from then on it stays in its place.
    void showText(const TextState &state, const QString &title);
    void setTint(const QList<Stretch> &stretches) { m_text->setTint(TintLayer::Changes, stretches); }

  protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

  private:
    void place();

    PlainTextBox &m_box;
    PlainTextBox *m_text;
    QLabel *m_title;
};

} // namespace tolvo
