// SPDX-License-Identifier: MIT
#include "spelling/spelling_services.h"

#include "platform/user_folders.h"
#include "preferences/settings_keys.h"
#include "spelling/user_dictionaries.h"
#include "spelling/word_automation.h"

#include <QLocale>

namespace tolvo {

QString SpellingServices::defaultAtdEndpoint() {
    const QString fromEnvironment = qEnvironmentVariable("TOLVO_ATD_URL");
    return fromEnvironment.isEmpty() ? QStringLiteral(TOLVO_ATD_URL) : fromEnvironment;
}

QString SpellingServices::defaultUserFolder() {
    return userDataFolder();
}

QString SpellingServices::defaultDesktopLocale() {
    const QLocale desktop = QLocale::system();
    return desktop.language() == QLocale::C ? QString() : desktop.name().replace(u'_', u'-').toLower();
}

void prepareSpelling(const SpellingServices &services) {
    ensureUserDictionary(services, settingKeys.spelling.hunLocale.otherwise());
    const auto &provider = settingKeys.spelling.provider;
    // The checking dialog takes a missing provider for Word, all other readers take it for Hunspell. Where
    // Word can't run, they must agree.
    if (!services.word.isPossible() && !isSet(services.store, provider))
        set(services.store, provider, provider.otherwise());
}

} // namespace tolvo
