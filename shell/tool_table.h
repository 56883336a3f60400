// SPDX-License-Identifier: MIT
// The tools of the session as one table: token, operation, selection rule, dialog, status. Adding a tool is
// one row here, one function that does it, and one line in data/Tools.dat.
#pragma once

#include <QString>
#include <QStringView>
#include <functional>
#include <optional>
#include <span>

namespace tolvo {

class CAction;
class frmMain;

/// What a text tool sees: the selection, or the whole text if there is none.
struct ToolInput {
    frmMain &session;
    QString text;
    int start = 0; ///< where it begins in the whole text, from 0
    bool selected = false;
};

/// A text tool with its settings, ready to run. Nothing if it can't work on the text.
using TextOperation = std::function<std::optional<QString>(const ToolInput &)>;

/// How a tool is run: either as a text operation under the selection rule, or by a procedure of its own.
struct ToolOperation {
    /// The operation with its settings: those of the Action, or without one those of the dialog. Nothing if
    /// the user cancelled the dialog.
    std::optional<TextOperation> (*prepare)(frmMain &, const CAction *) = nullptr;
    /// Does everything itself.
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
    const char16_t *dialog = u""; ///< name of the window that gives the settings; empty: none
    ToolStatus status = {};
    bool sixteenBit = false; ///< fails on a selection of 32768 units or more
    SortRefusal refusal = {};
    bool powerButtonOnly = false; ///< ToolDespatcher doesn't know it

    /// A PowerButton may store settings for it.
    [[nodiscard]] bool gotDialog() const { return *dialog != u'\0'; }
};

[[nodiscard]] std::span<const ToolRow> toolTable();

/// The row of a token, null for an unknown one.
[[nodiscard]] const ToolRow *toolRow(QStringView token);

/// Runs a tool on the text in use: its settings, its operation under the selection rule, its status. Counting
/// and undo are the callers'.
void runToolRow(frmMain &session, const ToolRow &row, const CAction *action);

} // namespace tolvo
