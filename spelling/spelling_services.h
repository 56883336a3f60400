// SPDX-License-Identifier: MIT
// What spelling stands on. One value, made once by the program (or by a test) and handed down.
#pragma once

#include <QString>

namespace tolvo {

class HttpClient;
class MessageBoxes;
class SettingsStore;
class WordAutomation;

struct SpellingServices {
    SettingsStore &store;
    MessageBoxes &boxes;
    HttpClient &http;      ///< asked only while the user's provider is a web service
    WordAutomation &word;  ///< NoWordAutomation where there is none
    QString programFolder; ///< the folder of Locales.txt and of the folder Dictionaries
    QString userFolder;    ///< persdict.dat lies here if Dictionaries can't be written; made when needed
    QString atdEndpoint = defaultAtdEndpoint(); ///< base address of After the Deadline; empty: never asked

    /// The environment variable TOLVO_ATD_URL, else what the build was configured with.
    [[nodiscard]] static QString defaultAtdEndpoint();
    /// The user's data folder of this program.
    [[nodiscard]] static QString defaultUserFolder();
};

/// What has to be there from the first run on: an empty persdict.dat, and, where Word can't be, a stored
/// provider (Hunspell) if none is stored yet. Harmless when it is all there already.
void prepareSpelling(const SpellingServices &services);

} // namespace tolvo
