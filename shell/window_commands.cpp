// SPDX-License-Identifier: MIT
#include "shell/window_commands.h"

#include "shell/frmMain.h"

#include <array>

namespace tolvo {

std::span<const WindowCommand> windowCommands() {
    static constexpr std::array<WindowCommand, 11> commands{{
        {u"imgWordwrap", u"Toggle word wrap", u"Break long lines on the screen only; the text stays as it is",
         u"Alt-W", u"", &frmMain::imgWordwrap_Click},
        {u"imgOptions", u"Options", u"Fonts, sounds, file extensions, spelling", u"Ctrl-O",
         u"switch the font", &frmMain::imgOptions_Click},
        {u"imgHelp", u"Help", u"How to use the program", u"F1", u"", &frmMain::imgHelp_Click},
        {u"imgAbout", u"About", u"Version and licence of the program", u"", u"", &frmMain::imgAbout_Click},
        {u"cmdUndo", u"Undo", u"Take back the last tool, or all that was typed after it", u"", u"",
         &frmMain::cmdUndo_Click},
        {u"cmdRedo", u"Redo", u"Bring back what Undo took", u"Ctrl-Y", u"", &frmMain::cmdRedo_Click},
        {u"undoPowerButton", u"Undo the last PowerButton",
         u"Take back all that it has done, and what came after it", u"Ctrl-Alt-Z", u"",
         &frmMain::undoPowerButton},
        {u"FindAgain", u"Find again", u"Go on with the last search", u"F3", u"", &frmMain::FindAgain},
        {u"cmdRefresh", u"Refresh with current Clipboard",
         u"Replace the text by what is on the clipboard now; Undo brings it back", u"Alt-F", u"",
         &frmMain::cmdRefresh_Click},
        {u"cmdCancel", u"Cancel", u"Close and leave the clipboard as it is", u"Alt-Q", u"",
         &frmMain::cmdCancel_Click},
        {u"cmdClose", u"Copy and Close", u"Put the whole text on the clipboard and close", u"Alt-D", u"",
         &frmMain::cmdClose_Click},
    }};
    return commands;
}

} // namespace tolvo
