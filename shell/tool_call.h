// SPDX-License-Identifier: MIT
#pragma once

#include "shell/session_services.h"
#include "shell/tool_table.h"

namespace tolvo {

class CAction;
class CSearch;
class ProofingHost;
class ToolSettingsMemory;

/// One call of a tool: the text, the part of the session that tools may use, and how the tool was called.
struct ToolCall {
    ToolContext context;
    const SessionServices &services;
    ProofingHost &proofing;
    CSearch &search;
    ToolSettingsMemory &settings;
    bool &bDirty;
    int &warnings;         ///< how often a tool has warned of something or refused its text
    const CAction *action; ///< the step of a PowerButton that brings its settings; null for any other call
    bool withLastSettings; ///< without its dialog; for a call without an Action
    bool fromPowerButton;  ///< a PowerButton runs
};

/// Runs a tool on the text in use: its settings, its operation under the selection rule, its status. Counting
/// and undo are the callers'.
void runToolRow(const ToolRow &row, const ToolCall &call);

} // namespace tolvo
