// SPDX-License-Identifier: MIT
// The tools as one table: token, operation with its settings, selection rule, status. Adding a tool is one
// row here, one function that does it, and one line in data/Tools.dat.
#pragma once

#include "text/tool_settings.h"

#include <QString>
#include <QStringView>
#include <optional>
#include <span>

namespace tolvo {

class CAction;
class TextBox;
class TextHost;
class cTextMethods;
class frmMain;

/// What a tool of the text works on: the engine, the text in use, and who hears its status.
struct ToolContext {
    const cTextMethods &engine;
    TextBox &box;
    TextHost &host;
};

/// What a text operation sees: the selection, or the whole text if there is none.
struct ToolInput {
    const ToolContext &context;
    QString text;
    int start = 0; ///< where it begins in the whole text, from 0
    bool selected = false;
    const ToolSettings *settings = nullptr; ///< those of the row's kind, null for a tool without settings

    [[nodiscard]] QString wholeText() const;
};

/// The window in which the user edits the settings string of an Action.
enum class SettingsWindow {
    None,
    Dialog, ///< the one of the row's settings (text/ui/tool_dialogs.h)
    Search,
    Replace,
    Language,
    PowerButton,
    Missing ///< settings that no window gives yet
};

/// How a tool is run: either as a text operation under the selection rule, or by a procedure.
struct ToolOperation {
    /// The new text; nothing if it can't work on the text.
    std::optional<QString> (*run)(const ToolInput &) = nullptr;
    /// Settings with their defaults, which also say which struct it is; null for a tool without.
    ToolSettings (*settings)() = nullptr;
    SettingsWindow window = SettingsWindow::None;
    bool powerButtonOnly = false; ///< ToolDespatcher doesn't know it
    /// Does everything on the text in use.
    void (*edit)(const ToolContext &) = nullptr;
    /// Does everything; gets the Action that runs it, null for a command of the user.
    void (*procedure)(frmMain &, const CAction *) = nullptr;
};

/// What a tool does with a selection. Without one it works on the whole text, and the caret goes to 0.
struct SelectionRule {
    enum Reach { AsSelected, WholeLines };
    enum Length { OldLength, NewLength, CaretBehind };
    Reach reach = AsSelected;
    Length length = CaretBehind; ///< how much is selected afterwards
};

/// What the status line says after the tool.
struct ToolStatus {
    enum Kind {
        None,
        Text,           ///< the text itself
        Length,         ///< the length of the whole text, then the text
        LengthUnwarned, ///< the same, but nothing after a warning of the operation
        Removed         ///< by how many characters the whole text shrank
    };
    Kind kind = None;
    const char16_t *text = u"";
};

/// What a sort says to a text that it can't work on; the text stays.
struct SortRefusal {
    enum When { Always, WithoutSelection };
    const char16_t *message = nullptr;
    When when = Always;
    bool statusToo = false; ///< the status is shown although the message comes
};

struct ToolRow {
    const char16_t *token;
    ToolOperation operation;
    SelectionRule rule = {};
    ToolStatus status = {};
    bool sixteenBit = false; ///< fails on a selection of 32768 units or more
    SortRefusal refusal = {};

    /// A PowerButton may store settings for it.
    [[nodiscard]] bool gotDialog() const { return operation.window != SettingsWindow::None; }
};

[[nodiscard]] std::span<const ToolRow> toolTable();

/// The row of a token, null for an unknown one.
[[nodiscard]] const ToolRow *toolRow(QStringView token);

/// Runs a tool on the text in use: its settings, its operation under the selection rule, its status. Counting
/// and undo are the callers'.
void runToolRow(frmMain &session, const ToolRow &row, const CAction *action);

} // namespace tolvo
