// SPDX-License-Identifier: MIT
// Tools that look at the text or change the selection, without an operation of the text engine.
#pragma once

#include <QString>
#include <QStringView>
#include <optional>

namespace tolvo {

class TextBox;
class TextHost;
struct ToolCall;
struct ToolContext;

/// Where the line begins (ends, its CR LF not counted) that holds a position. All positions from 0.
[[nodiscard]] int startOfLine(QStringView text, int position);
[[nodiscard]] int endOfLine(QStringView text, int position);

/// Grows the selection to whole lines; one that ends exactly at the beginning of a line takes that line in.
/// Nothing without a selection.
///   "one|t«wo|th»ree" becomes "one|«two|three»"
void extendSelectionToLines(TextBox &box);

/// Removes the selection; the caret is then at its start.
void clearSelection(const ToolContext &context);
void selectAll(const ToolContext &context);
/// Selects what stands between the first \[ and the next \].
void selectBetweenTags(const ToolContext &context);

/// Shows what the engine counts in the text and in the selection.
void showStatistics(const ToolCall &call);
/// These work as the clipboard keys do and give the text the focus.
void copySelection(const ToolCall &call);
void cutSelection(const ToolCall &call);
void deleteSelection(const ToolCall &call);
/// The inserted text is selected afterwards. Nothing checks the limit: the text box cuts what is too much.
void pasteAndSelect(const ToolCall &call);

/// The text that the clipboard gave. If it gave none, as its owner doesn't answer, the status says so.
[[nodiscard]] std::optional<QString> answered(std::optional<QString> text, TextHost &host);

} // namespace tolvo
