// SPDX-License-Identifier: MIT
// What assistive technology sees of the panel: a tree of the rows that are visible.
#pragma once

namespace tolvo {

class PanelRowButton;

/// To be called before the first panel is made; further calls do nothing.
void describePanels();
/// To be called when a row has been opened or closed.
void reportExpanded(PanelRowButton &row);

} // namespace tolvo
