// SPDX-License-Identifier: MIT
#include "pipe/completion.h"

#include "platform/headless/ConsoleBoxes.h"
#include "powerbuttons/CPowerButtonMethods.h"
#include "search/match_copy.h"
#include "shell/tool_table.h"

namespace tolvo {

namespace {

QString candidate(const QString &word, const QString &meaning) {
    return word + u'\t' + meaning;
}

/// A settings string with every key that the tool knows; empty for a tool whose settings are not listed.
QString exampleSettings(const ToolRow &row) {
    switch (row.operation.window) {
    case SettingsWindow::Dialog:
        return settingsString(row.operation.settings());
    case SettingsWindow::Search:
        return settingsString(SearchRequest{.direction = SearchDirection::Down}, false);
    case SettingsWindow::Replace:
        return settingsString(SearchRequest{.direction = SearchDirection::Down}, true);
    case SettingsWindow::CopyMatches:
        return settingsString(MatchCopy());
    case SettingsWindow::PowerButton:
        return QStringLiteral("PowerButton=1");
    default:
        return {};
    }
}

QStringList tools(const Catalogue &catalogue, const QString &begun) {
    QStringList found;
    for (const ToolPtr &tool : catalogue.tools()) {
        if (tool->isHeading() || tool->Token() == unknownToolToken || !tool->Token().startsWith(begun))
            continue;
        found += candidate(tool->Token(), tool->Name());
        if (tool->gotDialog())
            found += candidate(tool->Token() + u':', tool->Name() + QStringLiteral(" with settings"));
    }
    return found;
}

/// `head` is what stands before the setting that is being typed: the tool, its colon, and the settings
/// before.
QStringList settings(const ToolRow &row, const QString &head, const QString &begun) {
    QStringList found;
    for (const QString &pair : exampleSettings(row).split(QStringLiteral(", "), Qt::SkipEmptyParts)) {
        const QString key = pair.section(u'=', 0, 0);
        const bool isThere = head.contains(u':' + key + u'=') || head.contains(u' ' + key + u'=');
        if (!isThere && pair.startsWith(begun))
            found += candidate(head + pair, key);
    }
    return found;
}

} // namespace

QStringList buttonList(const HeadlessWorld &world) {
    RecordingBoxes boxes;
    CPowerButtonMethods methods(world.store, world.catalogue, boxes);
    QStringList list;
    for (int number = 1; number <= CPowerButtonCollection::buttonCount; ++number) {
        CPowerButton button;
        methods.ReadPBSettings(button, number);
        if (button.Count() > 0)
            list += candidate(QString::number(number), button.Name);
    }
    return list;
}

QStringList completions(const HeadlessWorld &world, const QString &begun) {
    const qsizetype colon = begun.indexOf(u':');
    if (colon < 0)
        return tools(world.catalogue, begun);
    const ToolRow *row = toolRow(begun.first(colon));
    if (!row)
        return {};
    const QString buttonKey = QStringLiteral("PowerButton=");
    const qsizetype comma = begun.lastIndexOf(QLatin1StringView(", "));
    const QString head = begun.first(comma < 0 ? colon + 1 : comma + 2);
    const QString setting = begun.sliced(head.size());
    if (row->operation.window != SettingsWindow::PowerButton || !setting.startsWith(buttonKey))
        return settings(*row, head, setting);
    QStringList found;
    for (const QString &button : buttonList(world)) {
        if (button.startsWith(setting.sliced(buttonKey.size())))
            found += head + buttonKey + button;
    }
    return found;
}

} // namespace tolvo
