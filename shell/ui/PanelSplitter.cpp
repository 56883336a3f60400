// SPDX-License-Identifier: MIT
#include "shell/ui/PanelSplitter.h"

#include "widgets/grid.h"
#include "widgets/themed_icon.h"

#include <QKeyEvent>
#include <QPainter>

namespace tolvo {

namespace {

class KeyHandle final : public QSplitterHandle {
  public:
    explicit KeyHandle(QSplitter *parent) : QSplitterHandle(Qt::Horizontal, parent) {
        setAccessibleName(QStringLiteral("Width of the tools, Left and Right move it"));
        setToolTip(QStringLiteral("Drag, or press Left and Right, to make room for the tools or the text"));
        setFocusPolicy(Qt::TabFocus);
    }

  protected:
    void keyPressEvent(QKeyEvent *event) override {
        const int step = 2 * Grid(*this).gap();
        const bool alone = (event->modifiers() & ~Qt::KeypadModifier) == 0; // others are commands
        switch (alone ? event->key() : 0) {
        case Qt::Key_Left:
            moveTo(x() - step);
            break;
        case Qt::Key_Right:
            moveTo(x() + step);
            break;
        case Qt::Key_Home:
            moveTo(0);
            break;
        case Qt::Key_End:
            moveTo(splitter()->width());
            break;
        default:
            QSplitterHandle::keyPressEvent(event);
        }
    }
    void focusInEvent(QFocusEvent *) override { update(); }
    void focusOutEvent(QFocusEvent *) override { update(); }
    void paintEvent(QPaintEvent *event) override {
        QSplitterHandle::paintEvent(event);
        if (hasFocus())
            QPainter(this).fillRect(rect().adjusted(2, 0, -2, 0), accentOn(palette(), QPalette::Window));
    }

  private:
    /// To the nearest place that it may take.
    void moveTo(int left) { moveSplitter(closestLegalPosition(left)); }
};

} // namespace

PanelSplitter::PanelSplitter(QWidget *parent) : QSplitter(Qt::Horizontal, parent) {
    setObjectName(QStringLiteral("panelSplitter"));
    setChildrenCollapsible(false);
}

QSplitterHandle *PanelSplitter::createHandle() {
    return new KeyHandle(this);
}

} // namespace tolvo
