// SPDX-License-Identifier: MIT
#include "powerbuttons/step_words.h"

#include "powerbuttons/CPowerButton.h"
#include "powerbuttons/circular_check.h"
#include "powerbuttons/setting_words.h"

#include <QStringList>

namespace tolvo {

namespace {

constexpr int mostNamed = 8;

QString nameOf(const ToolPtr &tool) {
    if (!tool || tool->Token() == unknownToolToken)
        return QStringLiteral("unknown tool");
    return tool->plainName();
}

/// How a step gets its settings, or what they are; empty for a tool without settings.
QString settingsOf(const CAction &action, const ButtonNames &names) {
    if (!action.Tool()->gotDialog())
        return {};
    switch (action.DlgOption()) {
    case SettingsFrom::Prompt:
        return QStringLiteral("asks when run");
    case SettingsFrom::Current:
        return QStringLiteral("as used last");
    case SettingsFrom::Custom:
        break;
    default:
        return QStringLiteral("does nothing");
    }
    if (action.Tool()->Token() != powerButtonToken)
        return settingsInWords(action);
    const std::optional<int> target = targetOf(action);
    const QString name = target ? names(*target).simplified() : QString();
    return name.isEmpty() ? action.Param(powerButtonKey) : name;
}

} // namespace

QString stepInWords(const CAction &action, const ButtonNames &names) {
    if (!action.Tool())
        return QStringLiteral("(no tool yet)");
    const QString name = action.Tool()->plainName();
    const QString settings = settingsOf(action, names);
    return settings.isEmpty() ? name : name + QStringLiteral(": ") + settings;
}

QString stepLine(int position, const CAction &action, const CPowerButtonCollection &buttons) {
    const auto nameOfButton = [&buttons](int number) {
        const auto button = buttons.Item(number);
        return button && button->isDefined() ? button->Name : QString();
    };
    return QString::number(position) + QStringLiteral(". ") + stepInWords(action, nameOfButton);
}

QString offRemark(const CAction &action) {
    return action.switchedOff() ? QStringLiteral(" (off)") : QString();
}

QString stepWords(const CPowerButton &button) {
    QStringList words;
    const int named = button.Count() <= mostNamed + 1 ? button.Count() : mostNamed;
    for (int i = 1; i <= named; ++i) {
        const auto action = button.Item(i);
        words +=
            QStringLiteral("%1. %2%3").arg(QString::number(i), nameOf(action->Tool()), offRemark(*action));
    }
    if (named < button.Count())
        words += QStringLiteral("and %1 more").arg(button.Count() - named);
    return words.join(QStringLiteral(", "));
}

} // namespace tolvo
