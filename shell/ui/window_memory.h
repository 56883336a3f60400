// SPDX-License-Identifier: MIT
// Keeps the places of windows in the store, for each kind of screen.
#pragma once

#include "preferences/settings_keys.h"

class QWidget;

namespace tolvo {

using PlaceKey = Setting<forms::Text, ScreenSection>;

/// The name of the screen that windows come up on.
[[nodiscard]] QString presentScreen();

/// The place of a window as it is written; empty for one that has never been shown.
[[nodiscard]] QString placeOf(const QWidget &window);

/// Gives a window that is not shown yet its place and size, or its place alone for one with a size of its
/// own. It stays as it is if the store has no place that still lies on a screen.
void bringBack(QWidget &window, const SettingsStore &store, const PlaceKey &key);
/// True if the window has been moved.
bool bringBackCorner(QWidget &window, const SettingsStore &store, const PlaceKey &key);

/// Writes what differs from the store; an empty text is not written.
void keepPlace(SettingsStore &store, const PlaceKey &key, const QString &place);

} // namespace tolvo
