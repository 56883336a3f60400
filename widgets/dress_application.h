// SPDX-License-Identifier: MIT
#pragma once

namespace tolvo {

/// Gives all windows of the program its style, its icon and the name under which a desktop finds its entry in
/// the menu, and the hints of empty fields a colour that can be read on the fields' ground: some themes leave
/// them black on black. Goes on following the theme. To be called once, when the application exists.
void dressApplication();

} // namespace tolvo
