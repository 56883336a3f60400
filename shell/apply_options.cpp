// SPDX-License-Identifier: MIT
#include "shell/apply_options.h"

#include "shell/frmMain.h"

namespace tolvo {

ProgramOptions presentOptions(const frmMain &session) {
    const FileExtensions &extensions = session.services().extensions;
    return loadOptions(
        session.services().store, session.aFonts, session.bFontUseProp, session.bWordWrap,
        [&extensions](const QString &extension) { return extensions.isSystemExtension(extension); });
}

void applyOptions(frmMain &session, const ProgramOptions &options) {
    session.aFonts = options.fonts;
    session.bFontUseProp = options.useProportional;
    session.applyFonts();
    if (options.wordWrap != session.bWordWrap)
        session.imgWordwrap_Click();
    saveOptions(session.services().store, options);
    session.bSounds = options.sounds;
    session.readTextPreferences();
}

} // namespace tolvo
