// SPDX-License-Identifier: MIT
#include "preferences/third_parties.h"

#include <sqlite3.h>
#include <unicode/uversion.h>

using namespace Qt::StringLiterals;

namespace tolvo {

QList<ThirdParty> thirdParties() {
    QList<ThirdParty> parties = {
        {u"Hunspell"_s, QStringLiteral(TOLVO_HUNSPELL_VERSION), u"LGPL-2.1-or-later"_s, u"Spelling"_s,
         u"https://hunspell.github.io"_s},
        {u"ICU"_s, QStringLiteral(U_ICU_VERSION), u"Unicode-3.0"_s, u"Order, names and forms of characters"_s,
         u"https://icu.unicode.org"_s},
        {u"minizip"_s, QStringLiteral(TOLVO_MINIZIP_VERSION), u"Zlib"_s, u"Packages of dictionaries"_s,
         u"https://zlib.net"_s},
        {u"PCRE2"_s, QStringLiteral(TOLVO_PCRE2_VERSION), u"BSD-3-Clause"_s, u"Regular expressions"_s,
         u"https://www.pcre.org"_s},
        {u"Qt"_s, QString::fromLatin1(qVersion()), u"LGPL-3.0-only"_s, u"Windows, clipboard, network"_s,
         u"https://www.qt.io"_s},
        {u"SQLite"_s, QString::fromLatin1(sqlite3_libversion()), u"blessing"_s, u"Settings"_s,
         u"https://www.sqlite.org"_s},
        {u"XCB"_s, QStringLiteral(TOLVO_XCB_VERSION), u"MIT"_s, u"Clipboard and keys under X11"_s,
         u"https://xcb.freedesktop.org"_s},
        {u"xkbcommon"_s, QStringLiteral(TOLVO_XKB_VERSION), u"MIT"_s, u"Keyboard layouts"_s,
         u"https://xkbcommon.org"_s},
    };
    parties.removeIf([](const ThirdParty &party) { return party.version.isEmpty(); }); // not in this build
    return parties;
}

} // namespace tolvo
