// SPDX-License-Identifier: MIT
#include "shell/apply_options.h"

#include "base/conversions.h"
#include "preferences/settings_table.h"
#include "shell/frmMain.h"
#include "text/top_level_domains.h"

namespace tolvo {

namespace {

void useWordOptions(frmMain &session, const QStringList &extensions, bool fullDomainList) {
    session.services().extensions.setUserExtensions(extensions);
    session.oTextMethods.setTopLevelDomains(fullDomainList ? longTopLevelDomains() : shortTopLevelDomains());
}

} // namespace

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
    useWordOptions(session, options.extensions, options.fullDomainList);
}

void loadWordOptions(frmMain &session) {
    const SettingsStore &store = session.services().store;
    useWordOptions(session, readList(store, QStringLiteral("Preferences\\UserFileExtensions")),
                   toFlag(readSetting(store, u"Preferences", u"TLD_Full")));
}

} // namespace tolvo
