// SPDX-License-Identifier: MIT
#include "powerbuttons/ui/effect_view.h"

#include "platform/desktop/PlainTextBox.h"
#include "widgets/ElidedLabel.h"
#include "widgets/announce.h"

#include <QGridLayout>

namespace tolvo {

namespace {

constexpr int patience = 250; ///< milliseconds

} // namespace

EffectView::EffectView(QWidget *parent)
    : QWidget(parent), m_before(makeBox("txtBefore", QStringLiteral("Text before the step"))),
      m_after(makeBox("txtAfter", QStringLiteral("Text after the step"))),
      m_says(new ElidedLabel(QStringLiteral("What the step reports"),
                             QStringLiteral("The step reports nothing"))) {
    setObjectName(QStringLiteral("frmEffect"));
    m_says->setObjectName(QStringLiteral("labEffect"));
    auto *layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setHorizontalSpacing(12);
    layout->addWidget(new QLabel(QStringLiteral("Before:"), this), 0, 0);
    layout->addWidget(new QLabel(QStringLiteral("After:"), this), 0, 1);
    layout->addWidget(m_before, 1, 0);
    layout->addWidget(m_after, 1, 1);
    layout->addWidget(m_says, 2, 0, 1, 2);
    layout->setRowStretch(1, 1);
    layout->setColumnStretch(0, 1);
    layout->setColumnStretch(1, 1);
    m_late.setSingleShot(true);
    m_late.setInterval(patience);
    connect(&m_late, &QTimer::timeout, this, [this] {
        for (PlainTextBox *box : {m_before, m_after})
            showIn(*box, {}, {});
        m_says->showText(QStringLiteral("Working out what the step does..."));
    });
}

PlainTextBox *EffectView::makeBox(const char *objectName, const QString &caption) {
    auto *box = new PlainTextBox(PlainTextBox::Lines::Wrapped, this);
    box->setObjectName(QLatin1StringView(objectName));
    box->setAccessibleName(caption);
    box->setReadOnly(true);
    box->setTabChangesFocus(true);
    box->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    box->setMinimumSize(box->fontMetrics().averageCharWidth() * 20, box->fontMetrics().lineSpacing() * 4);
    return box;
}

void EffectView::showEffect(const StepEffect &effect) {
    m_late.stop();
    showIn(*m_before, effect.before, effect.taken);
    showIn(*m_after, effect.after, effect.put);
    if (effect.put.isEmpty() && effect.selection.length > 0) { // it would hide a tint
        m_after->setSelStart(effect.selection.start);
        m_after->setSelLength(effect.selection.length);
        m_after->ensureCursorVisible();
    }
    m_says->showText(effect.says);
    announce(m_says, effect.says);
}

void EffectView::wait() {
    m_late.start();
}

/// The first place that is different is in sight.
void EffectView::showIn(PlainTextBox &box, const QString &text, const QList<TextSpan> &spans) {
    box.setTint(TintLayer::Changes, {});
    if (box.length() != text.size() || box.Text() != text)
        box.setText(text);
    QList<Stretch> stretches;
    stretches.reserve(spans.size());
    for (const TextSpan &span : spans)
        stretches += {span.start, span.length};
    box.setTint(TintLayer::Changes, stretches);
    box.setSelStart(spans.isEmpty() ? 0 : spans.first().start);
    box.setSelLength(0);
    box.ensureCursorVisible();
}

} // namespace tolvo
