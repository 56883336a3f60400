// SPDX-License-Identifier: MIT
// Makes a settings store whose runs open no tips: quiet_start FILE.
#include "preferences/settings_store.h"
#include "preferences/settings_table.h"

int main(int argc, char **argv) {
    if (argc != 2)
        return 2;
    tolvo::SettingsStore store(QString::fromUtf8(argv[1]));
    tolvo::writeSetting(store, u"Preferences", u"Show Tips at Startup", QStringLiteral("0"));
    return 0;
}
