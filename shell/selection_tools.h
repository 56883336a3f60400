// SPDX-License-Identifier: MIT
// Tools that look at the text or move the selection, with no operation of the text engine behind them.
#pragma once

#include <QStringView>

namespace tolvo {

class frmMain;
struct ToolContext;

/// Where the line begins (ends, its CR LF not counted) that holds a position. All positions from 0.
[[nodiscard]] int startOfLine(QStringView text, int position);
[[nodiscard]] int endOfLine(QStringView text, int position);

void clearSelection(const ToolContext &context);
void selectAll(const ToolContext &context);
/// Selects what stands between the first \[ and the next \].
void selectBetweenTags(const ToolContext &context);

void showStatistics(frmMain &session);
void copySelection(frmMain &session);
void cutSelection(frmMain &session);
void deleteSelection(frmMain &session);
/// The inserted text is selected afterwards. Nothing checks the limit: the text box cuts what is too much.
void pasteAndSelect(frmMain &session);

} // namespace tolvo
