// SPDX-License-Identifier: MIT
// What spelling needs of its surroundings: one value, made by the program or a test and handed down.
#pragma once

#include "spelling/dictionary_folders.h"

#include <QString>
#include <QStringList>

namespace tolvo {

class HttpClient;
class MessageBoxes;
class SettingsStore;
class WordAutomation;

/// The services; the references outlive their users.
struct SpellingServices {
    SettingsStore &store;
    MessageBoxes &boxes;
    HttpClient &http;     ///< asked only while the user's provider is a web service
    WordAutomation &word; ///< NoWordAutomation where Word can't run
    QString dataFolder;   ///< the folder of Locales.txt and of the folder Dictionaries
    QString userFolder;   ///< holds persdict.dat if Dictionaries isn't writable; created when needed
    QString atdEndpoint = defaultAtdEndpoint(); ///< After the Deadline's base address; empty: no requests
    QStringList systemDictionaries = systemDictionaryFolders(); ///< folders of dictionaries that others keep
    QString desktopLocale = defaultDesktopLocale();             ///< "de-at"; empty: none in particular

    /// The environment variable TOLVO_ATD_URL, else the build's setting.
    [[nodiscard]] static QString defaultAtdEndpoint();
    /// This program's folder in the user's data folder.
    [[nodiscard]] static QString defaultUserFolder();
    /// The language of the desktop; empty for one without a language, such as "C".
    [[nodiscard]] static QString defaultDesktopLocale();
};

/// Creates what spelling needs from the first run on: an empty persdict.dat and, where Word can't run,
/// Hunspell as the stored provider. What exists already stays as it is.
void prepareSpelling(const SpellingServices &services);

} // namespace tolvo
