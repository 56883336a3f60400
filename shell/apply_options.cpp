// SPDX-License-Identifier: MIT
#include "shell/apply_options.h"

#include "shell/frmMain.h"

namespace tolvo {

ProgramOptions presentOptions(const frmMain &session) {
    ProgramOptions options = loadOptions(session.services().store);
    options.fonts = session.aFonts;
    options.useProportional = session.bFontUseProp;
    options.wordWrap = session.bWordWrap;
    return options;
}

void useOptions(frmMain &session, const ProgramOptions &options) {
    session.aFonts = options.fonts;
    session.bFontUseProp = options.useProportional;
    session.applyFonts();
    session.bSounds = options.sounds;
    session.useWordOptions(options);
}

void applyOptions(frmMain &session, const ProgramOptions &options) {
    useOptions(session, options);
    if (options.wordWrap != session.bWordWrap)
        session.imgWordwrap_Click();
    saveOptions(session.services().store, options);
}

} // namespace tolvo
