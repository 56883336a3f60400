// SPDX-License-Identifier: MIT
#pragma once

namespace tolvo {

class CPowerButtonCollection;
class CPowerButtonMethods;
class Catalogue;
class Clipboard;
class Clock;
class FileExtensions;
class MessageBoxes;
class SessionDialogs;
class SessionView;
class SettingsStore;
class SoundPlayer;
struct SpellingServices;

/// What a session is built on. All outlive it.
struct SessionServices {
    SettingsStore &store;
    Clipboard &clipboard;
    MessageBoxes &boxes;
    SoundPlayer &sound;
    const Clock &clock;
    FileExtensions &extensions;
    const Catalogue &oTools;
    CPowerButtonCollection &oPowerButtons;
    CPowerButtonMethods &oPBMethods;
    SessionView &view;
    SessionDialogs &dialogs;
    const SpellingServices &spelling;
};

} // namespace tolvo
