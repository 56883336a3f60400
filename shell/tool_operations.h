// SPDX-License-Identifier: MIT
// What fills the column Operation of the table of tools.
#pragma once

#include "shell/search_tools.h"
#include "shell/spelling_tools.h"
#include "shell/text_operations.h"
#include "shell/tool_table.h"
#include "text/cTextMethods.h"

#include <optional>
#include <variant>

namespace tolvo::toolOperations {

/// An operation of the text engine that takes nothing but the text.
template <auto operation>
constexpr ToolOperation engine() {
    return {.run = [](const ToolInput &in) -> std::optional<QString> {
        return (in.context.engine.*operation)(in.text);
    }};
}

/// An operation of the shell on all that a tool is given.
template <QString (*operation)(const ToolInput &)>
constexpr ToolOperation text() {
    return {.run = [](const ToolInput &in) -> std::optional<QString> { return operation(in); }};
}

/// A function of the text alone.
template <QString (*operation)(QStringView)>
constexpr ToolOperation pure() {
    return {.run = [](const ToolInput &in) -> std::optional<QString> { return operation(in.text); }};
}

/// A decoder, which says what it could not decode.
template <DecodedText (*operation)(QStringView)>
constexpr ToolOperation decoding() {
    return {
        .run = [](const ToolInput &in) -> std::optional<QString> { return decoded(in, operation(in.text)); }};
}

/// How an operation with settings is run: one of the text alone, or one of all that a tool is given.
template <auto operation>
struct Asked;
template <class Settings, QString (*operation)(QStringView, const Settings &)>
struct Asked<operation> {
    static std::optional<QString> run(const ToolInput &in) {
        return operation(in.text, std::get<Settings>(*in.settings));
    }
    static ToolSettings settings() { return Settings(); }
};
template <class Settings, QString (*operation)(const ToolInput &, const Settings &)>
struct Asked<operation> {
    static std::optional<QString> run(const ToolInput &in) {
        return operation(in, std::get<Settings>(*in.settings));
    }
    static ToolSettings settings() { return Settings(); }
};

/// An operation that takes settings: those of its second parameter.
template <auto operation>
constexpr ToolOperation asked() {
    return {.run = &Asked<operation>::run,
            .settings = &Asked<operation>::settings,
            .window = SettingsWindow::Dialog};
}

/// An edit of the text in use, without an operation of the text engine.
template <void (*procedure)(const ToolContext &)>
constexpr ToolOperation onText() {
    return {.edit = procedure};
}

/// A procedure of the session that needs no settings.
constexpr ToolOperation inSession(void (*procedure)(const ToolCall &)) {
    return {.procedure = procedure};
}

/// Searching, in the search window or as an Action says.
template <bool replace>
constexpr ToolOperation searching() {
    return {.window = replace ? SettingsWindow::Replace : SettingsWindow::Search,
            .procedure = [](const ToolCall &call) { runSearchTool(call, replace); }};
}

/// Copying what a search finds.
constexpr ToolOperation copyingMatches() {
    return {.window = SettingsWindow::CopyMatches, .procedure = copyMatches};
}

/// The walk through words that may be misspelt.
template <bool grammar>
constexpr ToolOperation spelling() {
    return {.window = SettingsWindow::Language,
            .procedure = [](const ToolCall &call) { checkSpelling(call, grammar); }};
}

/// A step that the runner of Actions looks at itself.
constexpr ToolOperation nothing() {
    return {.window = SettingsWindow::Missing, .powerButtonOnly = true, .procedure = [](const ToolCall &) {}};
}

/// Whoever runs the Actions of a PowerButton runs it too.
constexpr ToolOperation nestedPowerButton() {
    ToolOperation operation = nothing();
    operation.window = SettingsWindow::PowerButton;
    return operation;
}

} // namespace tolvo::toolOperations
