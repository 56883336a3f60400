// SPDX-License-Identifier: MIT
// The tools as one table: token, operation with its settings, selection rule, status. Adding a tool is one
// row here, one function that does it, one line in data/Tools.dat and its place in the manual.
#pragma once

#include "search/match_budget.h"
#include "text/tool_settings.h"

#include <QString>
#include <QStringView>
#include <optional>
#include <span>

namespace tolvo {

class TextBox;
class TextHost;
class cTextMethods;
struct ToolCall;

/// What a tool of the text works on.
struct ToolContext {
    const cTextMethods &engine;
    TextBox &box;   ///< the text in use
    TextHost &host; ///< hears statuses and warnings
    /// How long it may look for matches of a pattern.
    MatchBudget::Clock::duration patience = MatchBudget::usualTime;
};

/// What a text operation sees: the selection, or the whole text if there is none.
struct ToolInput {
    const ToolContext &context;
    QString text;
    int start = 0; ///< where it begins in the whole text, from 0
    bool selected = false;
    const ToolSettings *settings = nullptr; ///< those of the row's kind, null for a tool without settings

    /// The text that `text` is a part of.
    [[nodiscard]] QString wholeText() const;
};

/// The window in which the user edits the settings string of an Action.
enum class SettingsWindow {
    None,
    Dialog, ///< the one of the row's settings (text/ui/tool_dialogs.h)
    Search,
    Replace,
    CopyMatches,
    Language,
    PowerButton,
    Missing ///< settings that no window gives yet
};

/// How a tool is run: by one of `run`, `edit` and `procedure`.
struct ToolOperation {
    /// A text operation under the selection rule. Gives the new text; nothing if it can't work on the text.
    std::optional<QString> (*run)(const ToolInput &) = nullptr;
    /// Settings with their defaults, which also say which struct it is; null for a tool without.
    ToolSettings (*settings)() = nullptr;
    SettingsWindow window = SettingsWindow::None;
    bool powerButtonOnly = false; ///< ToolDespatcher doesn't know it
    /// Does everything, on the text in use.
    void (*edit)(const ToolContext &) = nullptr;
    /// Does everything, in the session.
    void (*procedure)(const ToolCall &) = nullptr;
};

/// What a tool does with a selection. Without one it works on the whole text, and the caret goes to 0.
struct SelectionRule {
    enum class Reach { AsSelected, WholeLines };
    /// As many units as before, all of the new text, or nothing: then the caret is after the new text.
    enum class Length { Old, New, Caret };
    Reach reach = Reach::AsSelected;
    Length length = Length::Caret; ///< how much is selected afterwards
};

/// What the status line says after the tool.
struct ToolStatus {
    enum class Kind {
        None,
        Text,           ///< the text itself
        Length,         ///< the length of the whole text, then the text
        LengthUnwarned, ///< the same, but nothing after a warning of the operation
        Removed         ///< by how many characters the whole text shrank
    };
    Kind kind = Kind::None;
    const char16_t *text = u"";
};

/// What a sort says to a text that it can't work on; the text stays.
struct SortRefusal {
    enum class When { Always, WithoutSelection };
    const char16_t *message = nullptr;
    When when = When::Always;
    bool statusToo = false; ///< the status is shown although the message comes
};

/// One tool.
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

/// All tools.
[[nodiscard]] std::span<const ToolRow> toolTable();

/// The row of a token, null for an unknown one.
[[nodiscard]] const ToolRow *toolRow(QStringView token);

} // namespace tolvo
