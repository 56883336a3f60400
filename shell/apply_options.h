// SPDX-License-Identifier: MIT
// What the Options change in a session that runs.
#pragma once

#include "preferences/options.h"

namespace tolvo {

class frmMain;

/// The options as the session and the store have them now.
[[nodiscard]] ProgramOptions presentOptions(const frmMain &session);

/// Apply: fonts and word wrap of the text, then the store, sounds, the user's file extensions, the list of
/// top level domains. Word wrap leaves bDirty alone.
void applyOptions(frmMain &session, const ProgramOptions &options);

} // namespace tolvo
