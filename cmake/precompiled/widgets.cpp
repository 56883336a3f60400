// SPDX-License-Identifier: MIT
// The target that owns the precompiled header widgets.h.
