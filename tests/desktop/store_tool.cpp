// SPDX-License-Identifier: MIT
// Reads and writes one value of a settings store for the stories: store_tool FILE read|write TREE SECTION KEY
// [VALUE].
#include "preferences/settings_store.h"

#include <cstdio>

int main(int argc, char **argv) {
    QStringList words;
    for (int i = 1; i < argc; ++i)
        words += QString::fromUtf8(argv[i]);
    const bool write = words.size() == 6 && words[1] == QLatin1StringView("write");
    if (!write && (words.size() != 5 || words[1] != QLatin1StringView("read"))) {
        std::fputs("usage: store_tool FILE read|write TREE SECTION KEY [VALUE]\n", stderr);
        return 2;
    }
    tolvo::SettingsStore store(words[0]);
    if (write)
        store.SaveSetting(words[2], words[3], words[4], words[5]);
    else
        std::fputs(store.GetSetting(words[2], words[3], words[4]).toUtf8().constData(), stdout);
    const QString trouble = store.takeTrouble();
    std::fputs(trouble.toUtf8().constData(), stderr);
    return trouble.isEmpty() ? 0 : 1;
}
