// SPDX-License-Identifier: MIT
#include "shell/ui/tool_explanation.h"

#include "shell/tool_finder.h"
#include "shell/ui/row_painting.h"

#include <QPainter>
#include <QTextLayout>

namespace tolvo {

namespace {
constexpr int linesWanted = 7;
} // namespace

ToolExplanation::ToolExplanation(QWidget *parent) : QWidget(parent) {
    setObjectName(QStringLiteral("labExplanation"));
}

void ToolExplanation::explain(const FinderEntry &entry, const QString &hint) {
    show({{entry.name, true},
          {entry.does},
          {entry.example},
          {entry.keyNote.isEmpty() ? QString() : QStringLiteral("Key: ") + entry.keyNote, false, true},
          {hint, false, true}});
}

void ToolExplanation::clear(const QString &hint) {
    show({{hint, false, true}});
}

void ToolExplanation::show(const QList<Paragraph> &paragraphs) {
    m_paragraphs.clear();
    QStringList lines;
    for (const Paragraph &one : paragraphs) {
        if (one.text.isEmpty())
            continue;
        m_paragraphs += one;
        lines += one.text;
    }
    setAccessibleName(lines.join(u'\n')); // it is painted, not a label
    update();
}

int ToolExplanation::wantedHeight() const {
    return linesWanted * fontMetrics().lineSpacing();
}

void ToolExplanation::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    const QColor loud = palette().color(QPalette::WindowText);
    const QColor quiet = quietText(palette(), QPalette::WindowText, QPalette::Window);
    qreal top = 0;
    for (const Paragraph &one : m_paragraphs) {
        QFont face = font();
        face.setBold(one.bold);
        QTextLayout layout(one.text, face);
        layout.beginLayout();
        for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine())
            line.setLineWidth(width());
        layout.endLayout();
        painter.setPen(one.quiet ? quiet : loud);
        for (int i = 0; i < layout.lineCount(); ++i) {
            const QTextLine line = layout.lineAt(i);
            if (top + line.height() > height() + 1)
                return;
            line.draw(&painter, QPointF(0, top - line.y()));
            top += line.height();
        }
    }
}

} // namespace tolvo
