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
    for (int i = 1; i <= named; ++i) {
        const auto action = button.Item(i);
        words += QStringLiteral("%1. %2%3")
                     .arg(QString::number(i), nameOf(action->Tool()),
                          action->switchedOff() ? QStringLiteral(" (off)") : QString());
    }
    if (named < button.Count())
        words += QStringLiteral("and %1 more").arg(button.Count() - named);
    return words.join(QStringLiteral(", "));
}

} // namespace tolvo
