// SPDX-License-Identifier: MIT
// The frame through which every tool runs: undo, counters, status, and the selection rule.
#include "base/failure.h"
#include "platform/headless/MemoryTextBox.h"
#include "shell/cToolbox.h"
#include "shell/finder_entries.h"
#include "shell/frmMain.h"
#include "shell/selection_tools.h"
#include "shell/tool_call.h"
#include "shell/tool_preview.h"
#include "text/silent_text_host.h"

#include <limits>

namespace tolvo {

namespace {

/// Four case tools and three sorts hold the length of a selection in a signed 16-bit integer.
constexpr int longestSixteenBit = std::numeric_limits<qint16>::max();

QString removedText(int count) {
    return QString::number(count) +
           (count == 1 ? QStringLiteral(" character removed") : QStringLiteral(" characters removed"));
}

QString statusText(const ToolStatus &status, int lengthBefore, int lengthAfter, bool warned) {
    QString text = QString::fromUtf16(status.text);
    switch (status.kind) {
    case ToolStatus::Kind::None:
        break;
    case ToolStatus::Kind::Text:
        return text;
    case ToolStatus::Kind::Length:
        return QString::number(lengthAfter) + text;
    case ToolStatus::Kind::LengthUnwarned:
        return warned ? QString() : QString::number(lengthAfter) + text;
    case ToolStatus::Kind::Removed:
        return removedText(lengthBefore - lengthAfter);
    }
    return {};
}

ToolInput toolInput(const ToolContext &context, const ToolRow &row, const ToolSettings *settings) {
    TextBox &box = context.box;
    if (box.SelLength() == 0)
        return {context, box.Text(), 0, false, settings};
    if (row.rule.reach == SelectionRule::Reach::WholeLines)
        extendSelectionToLines(box);
    if (row.sixteenBit && box.SelLength() > longestSixteenBit)
        failOverflow();
    return {context, box.SelText(), box.SelStart(), true, settings};
}

void writeResult(TextBox &box, const ToolInput &input, const QString &result, SelectionRule::Length length) {
    if (!input.selected) {
        box.setText(result);
        return;
    }
    if (length == SelectionRule::Length::New) {
        replaceAndSelect(box, result);
        return;
    }
    box.setSelText(result);
    if (length == SelectionRule::Length::Old)
        select(box, input.start, static_cast<int>(input.text.size()));
}

/// A sort can't work on the text, which stays.
void refuse(const ToolRow &row, const ToolCall &call, bool selected) {
    const bool saysSo = row.refusal.when == SortRefusal::When::Always || !selected;
    if (!saysSo || row.refusal.statusToo)
        call.context.host.setStatus(QString::fromUtf16(row.status.text));
    if (saysSo) {
        call.services.boxes.show({.text = QString::fromUtf16(row.refusal.message)});
        ++call.warnings;
    }
}

void runTextOperation(const ToolRow &row, const ToolCall &call, const ToolSettings *settings) {
    TextBox &box = call.context.box;
    const int lengthBefore = box.length();
    const int warningsBefore = call.warnings;
    const ToolInput input = toolInput(call.context, row, settings);
    const std::optional<QString> result = row.operation.run(input);
    if (!result) {
        refuse(row, call, input.selected);
        return;
    }
    writeResult(box, input, *result, row.rule.length);
    const bool warned = call.warnings > warningsBefore;
    if (row.status.kind != ToolStatus::Kind::None)
        call.context.host.setStatus(statusText(row.status, lengthBefore, box.length(), warned));
    if (!call.fromPowerButton && *result == input.text)
        call.services.view.hintChanged(QStringLiteral("Nothing changed"));
}

/// The settings of the Action, else those last used, which the user may change first unless the call wants
/// them as they are. Nothing if the user cancelled.
std::optional<ToolSettings> settingsFor(const ToolCall &call, const ToolSettings &defaults) {
    if (call.action)
        return settingsFromAction(defaults, call.action->params());
    ToolSettings &settings = call.settings.get(defaults);
    if (!call.withLastSettings && !call.services.dialogs.askToolSettings(settings))
        return std::nullopt;
    return settings;
}

} // namespace

void runToolRow(const ToolRow &row, const ToolCall &call) {
    const ToolOperation &operation = row.operation;
    if (operation.procedure) {
        operation.procedure(call);
    } else if (operation.edit) {
        operation.edit(call.context);
    } else if (!operation.settings) {
        runTextOperation(row, call, nullptr);
    } else if (const auto settings = settingsFor(call, operation.settings())) {
        runTextOperation(row, call, &*settings);
    }
}

std::optional<TextState> textAfterTool(const ToolRow &row, const ToolSettings &settings,
                                       const cTextMethods &engine, const TextBox &present) {
    if (!row.operation.run || !row.operation.settings || row.operation.settings().index() != settings.index())
        return std::nullopt;
    MemoryTextBox box(present.capacity());
    restore(box, textState(present));
    SilentTextHost host;
    constexpr std::chrono::milliseconds patience{100}; // somebody is typing
    const ToolContext context{engine, box, host, patience};
    const ToolInput input = toolInput(context, row, &settings);
    const std::optional<QString> result = row.operation.run(input);
    if (!result)
        return std::nullopt;
    writeResult(box, input, *result, row.rule.length);
    return textState(box);
}

ToolCall frmMain::toolCall(const CAction *action) {
    return {.context = {oTextMethods, txtCurrent(), *this},
            .services = m_services,
            .proofing = *this,
            .search = oSearch,
            .settings = m_toolSettings,
            .bDirty = m_dirty,
            .warnings = m_warnings,
            .action = action,
            .withLastSettings = bRightButton,
            .fromPowerButton = !m_runningButtons.isEmpty()};
}

void frmMain::ToolDespatcher(const QString &token) {
    guarded(u"ToolDespatcher", [&] {
        const RunScope run(*this, {.name = toolName(token)});
        showingChange(toolName(token), [&] { runTool(token); });
        if (!sLastTool.isEmpty())
            noteUse(m_services.store, token);
    });
}

void frmMain::runTool(const QString &token) {
    pushUndo();
    countTool(token);
    setStatus({});
    sLastTool = token;
    const ToolRow *row = toolRow(token);
    if (row && !row->operation.powerButtonOnly) {
        keepingText([&] { runToolRow(*row, toolCall()); });
        noteActionOf(*row, m_services.oTools.tool(token));
    } else {
        say(QStringLiteral("This tool is not implemented yet"));
        sLastTool.clear();
    }
    pushUndo();
}

void frmMain::countTool(const QString &token) {
    increment(m_services.store, settingKeys.statistics.uses.of(token));
    increment(m_services.store, settingKeys.statistics.totalUses.of(token));
}

void frmMain::lblToolbox_Click(cToolbox &oToolbox, int row) {
    if (oToolbox.rolling())
        return;
    setStatus({});
    const cToolbox::Row clicked = oToolbox.row(row);
    if (clicked.isCategory())
        guarded(u"lblToolbox_Click", [&] { oToolbox.Layout(clicked.tag.last(1).toInt()); });
    else
        ToolDespatcher(clicked.tag);
    bRightButton = false;
}

void frmMain::runFavourite(const QString &tag) {
    const QString before = txtCurrent().Text();
    if (tag == QLatin1StringView("foBOTH")) {
        const int lengthBefore = txtCurrent().length();
        runTool(QStringLiteral("foTRA"));
        runTool(QStringLiteral("foSSP"));
        setStatus(removedText(lengthBefore - txtCurrent().length()));
    } else if (tag == QLatin1StringView("chPNC")) {
        runTool(QStringLiteral("edPLA"));
        runTool(QStringLiteral("chPNC"));
    } else {
        runTool(tag);
    }
    if (txtCurrent().Text() != before)
        m_services.view.hintChanged({}); // the second of two tools may have had nothing to do
}

void frmMain::imgFavourites_Click(const QString &tag) {
    guarded(u"imgFavourites_Click", [&] {
        const RunScope run(*this, {.name = favouriteName(tag)});
        showingChange(favouriteName(tag), [&] { runFavourite(tag); });
        noteUse(m_services.store, favouriteId(tag));
    });
}

} // namespace tolvo
