// SPDX-License-Identifier: MIT
// The target that owns the precompiled header core.h.
