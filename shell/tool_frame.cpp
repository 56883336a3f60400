// SPDX-License-Identifier: MIT
// The frame through which every tool runs: undo, counters, status, and the selection rule.
#include "base/failure.h"
#include "shell/cToolbox.h"
#include "shell/frmMain.h"
#include "shell/tool_table.h"

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
    case ToolStatus::None:
        break;
    case ToolStatus::Text:
        return text;
    case ToolStatus::Length:
        return QString::number(lengthAfter) + text;
    case ToolStatus::LengthUnwarned:
        return warned ? QString() : QString::number(lengthAfter) + text;
    case ToolStatus::Removed:
        return removedText(lengthBefore - lengthAfter);
    }
    return {};
}

ToolInput toolInput(frmMain &session, const ToolContext &context, const ToolRow &row,
                    const ToolSettings *settings) {
    TextBox &box = context.box;
    if (box.SelLength() == 0)
        return {context, box.Text(), 0, false, settings};
    if (row.rule.reach == SelectionRule::WholeLines)
        session.ExtendSelectionToLines();
    if (row.sixteenBit && box.SelLength() > longestSixteenBit)
        failOverflow();
    return {context, box.SelText(), box.SelStart(), true, settings};
}

void writeResult(TextBox &box, const ToolInput &input, const QString &result, SelectionRule::Length length) {
    if (!input.selected) {
        box.setText(result);
        return;
    }
    if (length == SelectionRule::NewLength) {
        replaceAndSelect(box, result);
        return;
    }
    box.setSelText(result);
    if (length == SelectionRule::OldLength)
        select(box, input.start, static_cast<int>(input.text.size()));
}

/// A sort can't work on the text, which stays.
void refuse(frmMain &session, const ToolRow &row, bool selected) {
    const bool tell = row.refusal.when == SortRefusal::Always || !selected;
    if (!tell || row.refusal.statusToo)
        session.setStatus(QString::fromUtf16(row.status.text));
    if (tell) {
        session.say(QString::fromUtf16(row.refusal.message));
        session.noteWarning();
    }
}

void runTextOperation(frmMain &session, const ToolRow &row, const ToolSettings *settings) {
    const ToolContext context = session.toolContext();
    TextBox &box = context.box;
    const int lengthBefore = box.length();
    const int warningsBefore = session.warnings();
    const ToolInput input = toolInput(session, context, row, settings);
    const std::optional<QString> result = row.operation.run(input);
    if (!result) {
        refuse(session, row, input.selected);
        return;
    }
    writeResult(box, input, *result, row.rule.length);
    if (row.status.kind != ToolStatus::None)
        session.setStatus(
            statusText(row.status, lengthBefore, box.length(), session.warnings() > warningsBefore));
}

/// The settings of an Action, else those last used, which the user may change first unless the right button
/// called the tool. Nothing if the user cancelled.
std::optional<ToolSettings> settingsFor(frmMain &session, const ToolSettings &defaults,
                                        const CAction *action) {
    if (action)
        return settingsFromAction(defaults, action->params());
    ToolSettings &settings = session.toolSettings().get(defaults);
    if (!session.bRightButton && !session.services().dialogs.askToolSettings(settings))
        return std::nullopt;
    return settings;
}

} // namespace

void runToolRow(frmMain &session, const ToolRow &row, const CAction *action) {
    const ToolOperation &operation = row.operation;
    if (operation.procedure) {
        operation.procedure(session, action);
    } else if (operation.edit) {
        operation.edit(session.toolContext());
    } else if (!operation.settings) {
        runTextOperation(session, row, nullptr);
    } else if (const auto settings = settingsFor(session, operation.settings(), action)) {
        runTextOperation(session, row, &*settings);
    }
}

void frmMain::ToolDespatcher(const QString &token) {
    guarded(u"ToolDespatcher", [&] { runTool(token); });
}

void frmMain::runTool(const QString &token) {
    pushUndo();
    countTool(token);
    setStatus({});
    sLastTool = token;
    const ToolRow *row = toolRow(token);
    if (row && !row->operation.powerButtonOnly) {
        keepingText([&] { runToolRow(*this, *row, nullptr); });
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

void frmMain::imgFavourites_Click(const QString &tag) {
    guarded(u"imgFavourites_Click", [&] {
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
    });
}

} // namespace tolvo
