// SPDX-License-Identifier: MIT
// Makes a settings store whose runs open no tips: quiet_start FILE.
#include "preferences/settings_keys.h"

int main(int argc, char **argv) {
    if (argc != 2)
        return 2;
    tolvo::SettingsStore store(QString::fromUtf8(argv[1]));
    tolvo::set(store, tolvo::settingKeys.preferences.showTips, false);
    return 0;
}
