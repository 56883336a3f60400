// SPDX-License-Identifier: MIT
#include "shell/ui/clear_of_text.h"

#include "shell/ui/MainWindow.h"
#include "shell/window_clearance.h"

#include <QGuiApplication>
#include <QScreen>
#include <QTextBlock>

namespace tolvo {

namespace {

constexpr QSize frameToCome{8, 36}; ///< about what a window manager adds, which is not known yet

bool mayPlace(const QWidget &window) {
    return window.isWindow() && canPlaceWindows();
}

QRect onDesktop(const QWidget &widget, const QRect &area) {
    return {widget.mapToGlobal(area.topLeft()), area.size()};
}

/// The caret's line, as wide as the text box.
QRect caretLine(PlainTextBox &text) {
    QRect line = text.cursorRect();
    line.setLeft(0);
    line.setRight(text.viewport()->width());
    return onDesktop(*text.viewport(), line);
}

/// The selection as far as it lies on its first line.
QRect startOfSelection(PlainTextBox &text) {
    QTextCursor cursor = text.textCursor();
    const int end = cursor.selectionEnd();
    cursor.setPosition(cursor.selectionStart());
    const QRect first = text.cursorRect(cursor);
    cursor.setPosition(end);
    const QRect last = text.cursorRect(cursor);
    QRect area = first;
    area.setRight(last.top() == first.top() ? last.right() : text.viewport()->width());
    return onDesktop(*text.viewport(), area & text.viewport()->rect());
}

} // namespace

bool canPlaceWindows() {
    return !QGuiApplication::platformName().startsWith(QLatin1StringView("wayland"));
}

void placeBesideText(QWidget &window, MainWindow &main) {
    if (!mayPlace(window))
        return;
    PlainTextBox &text = main.shownTextBox();
    const TextPlace place{.main = main.frameGeometry(),
                          .text = onDesktop(text, text.rect()),
                          .line = caretLine(text),
                          .screen = main.screen()->availableGeometry()};
    window.move(cornerBesideText(window.size() + frameToCome, place));
}

void moveOntoScreen(QWidget &window) {
    const QRect area = window.frameGeometry();
    const QPoint corner = cornerOnScreen(area, window.screen()->availableGeometry());
    if (mayPlace(window) && window.isVisible() && corner != area.topLeft())
        window.move(corner);
}

void moveOffSelection(QWidget &window, MainWindow &main) {
    PlainTextBox &text = main.shownTextBox();
    if (!mayPlace(window) || !window.isVisible() || !text.textCursor().hasSelection())
        return;
    const auto corner =
        cornerAside(window.frameGeometry(), startOfSelection(text), window.screen()->availableGeometry());
    if (corner)
        window.move(*corner);
}

} // namespace tolvo
