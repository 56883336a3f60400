// SPDX-License-Identifier: MIT
#include "powerbuttons/icon_geometry.h"

#include "base/numbers.h"

#include <QTextBoundaryFinder>

namespace tolvo {

ButtonIcon iconOf(const CPowerButton &button) {
    return {button.IconText,
            {button.IconFontName, button.IconFontSize, button.IconFontBold, button.IconFontItalic},
            button.IconX,
            button.IconY};
}

void setIcon(CPowerButton &button, const ButtonIcon &icon) {
    button.IconText = icon.text;
    button.IconFontName = icon.font.name;
    button.IconFontSize = icon.font.size;
    button.IconFontBold = icon.font.bold;
    button.IconFontItalic = icon.font.italic;
    button.IconX = icon.x;
    button.IconY = icon.y;
}

QString defaultIconFont() {
    return QStringLiteral("Arial");
}

QString firstCharacters(const QString &text, int count) {
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    for (int i = 0; i < count; ++i) {
        if (finder.toNextBoundary() < 0)
            return text;
    }
    return text.first(finder.position());
}

QString fontLabel(const Font &font) {
    return font.name + (font.bold ? QStringLiteral(" Bold") : QString()) +
           (font.italic ? QStringLiteral(" Italic") : QString()) + QStringLiteral(" (") +
           numberText(font.size) + QStringLiteral("pt)");
}

} // namespace tolvo
