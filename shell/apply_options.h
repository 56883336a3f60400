// SPDX-License-Identifier: MIT
// The options of a session: those it begins with, and what the Options dialog changes while it runs.
#pragma once

#include "preferences/options.h"

namespace tolvo {

class frmMain;

/// The options as the session and the store have them.
[[nodiscard]] ProgramOptions presentOptions(const frmMain &session);

/// Takes over fonts, sounds, the user's file extensions and the list of top level domains. Word wrap and the
/// store stay as they are.
void useOptions(frmMain &session, const ProgramOptions &options);

/// The button Apply: all of them, word wrap included, in the session and in the store. Leaves bDirty alone.
void applyOptions(frmMain &session, const ProgramOptions &options);

} // namespace tolvo
