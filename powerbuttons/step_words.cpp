// SPDX-License-Identifier: MIT
#include "powerbuttons/step_words.h"

#include "powerbuttons/CPowerButton.h"

#include <QStringList>

namespace tolvo {

namespace {

constexpr int mostNamed = 8;

QString nameOf(const ToolPtr &tool) {
    if (!tool || tool->Token() == unknownToolToken)
        return QStringLiteral("unknown tool");
    QString name = tool->Name();
    while (name.endsWith(u'.')) // those of a tool with a dialog
        name.chop(1);
    return name;
}

} // namespace

QString stepWords(const CPowerButton &button) {
    QStringList words;
    const int named = button.Count() <= mostNamed + 1 ? button.Count() : mostNamed;
    for (int i = 1; i <= named; ++i)
        words += QStringLiteral("%1. %2").arg(i).arg(nameOf(button.Item(i)->Tool()));
    if (named < button.Count())
        words += QStringLiteral("and %1 more").arg(button.Count() - named);
    return words.join(QStringLiteral(", "));
}

} // namespace tolvo
