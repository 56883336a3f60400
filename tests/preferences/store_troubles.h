// SPDX-License-Identifier: MIT
#pragma once

#include "preferences/settings_store.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace tolvo {

using namespace Qt::StringLiterals;

inline const QString app = u"Tolvo"_s;
inline const QString section = u"S"_s;

/// A settings file with one value, about to be spoilt.
struct StoreTroubles : testing::Test {
    QTemporaryDir folder;
    QString path = folder.filePath(u"settings.sqlite"_s);

    void SetUp() override {
        SettingsStore store(path);
        store.SaveSetting(app, section, u"old"_s, u"value"_s);
    }

    /// The session works, whatever became of the file, and has something to say exactly once.
    static void expectGoesOn(SettingsStore &store, const QString &word, const QString &old) {
        store.SaveSetting(app, section, u"new"_s, u"1"_s);
        store.increment(app, section, u"new"_s);
        EXPECT_EQ(store.GetSetting(app, section, u"new"_s), u"2"_s);
        EXPECT_EQ(store.GetSetting(app, section, u"old"_s), old);
        const QString trouble = store.takeTrouble();
        EXPECT_TRUE(trouble.contains(word)) << trouble.toStdString();
        EXPECT_EQ(store.takeTrouble(), QString());
    }
};

} // namespace tolvo
