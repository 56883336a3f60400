// SPDX-License-Identifier: MIT
#pragma once

#include "powerbuttons/step_effects.h"

#include <QTimer>
#include <QWidget>

namespace tolvo {

class ElidedLabel;
class PlainTextBox;

/// The text before and after a step, side by side, with what is different tinted, and what the step reports.
class EffectView : public QWidget {
    Q_OBJECT
  public:
    explicit EffectView(QWidget *parent);

    void showEffect(const StepEffect &effect);
    /// An effect is being worked out: where that takes long, the view says so instead of showing an old one.
    void wait();

  private:
    PlainTextBox *makeBox(const char *objectName, const QString &caption);
    void showIn(PlainTextBox &box, const QString &text, const QList<TextSpan> &spans);

    PlainTextBox *m_before;
    PlainTextBox *m_after;
    ElidedLabel *m_says;
    QTimer m_late;
};

} // namespace tolvo
