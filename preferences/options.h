// SPDX-License-Identifier: MIT
// The program-wide settings as one value: what the Options dialog takes and gives. Nothing else reads their
// section of the store.
#pragma once

#include "platform/font.h"
#include "preferences/settings_keys.h"

#include <QDateTime>
#include <QString>
#include <QStringList>
#include <array>

namespace tolvo {

/// What the text engine takes for a file extension or an Internet address.
struct WordOptions {
    QStringList extensions; ///< the user's file extensions, without stops
    bool fullDomainList = settingKeys.preferences.fullDomainList.otherwise();

    bool operator==(const WordOptions &) const = default;
};

/// What a spelling check makes of the way words are typed.
struct TypedTextOptions {
    bool skipDigits = settingKeys.typedText.skipDigits.otherwise();
    bool skipCapitals = settingKeys.typedText.skipCapitals.otherwise();
    bool skipAddresses = settingKeys.typedText.skipAddresses.otherwise(); ///< of the web and of mail
    bool skipFileNames = settingKeys.typedText.skipFileNames.otherwise();
    /// In British English too; elsewhere it always is one.
    bool curlyApostrophe = settingKeys.typedText.curlyApostrophe.otherwise();

    bool operator==(const TypedTextOptions &) const = default;
};

struct ProgramOptions : WordOptions, TypedTextOptions {
    std::array<Font, 2> fonts; ///< 0 proportional, 1 fixed
    bool useProportional = settingKeys.preferences.useProportional.otherwise();
    bool wordWrap = settingKeys.preferences.wordWrap.otherwise();
    bool showTips = settingKeys.preferences.showTips.otherwise();
    bool showTroubles = settingKeys.hints.troubles.otherwise();
    bool sounds = settingKeys.preferences.sounds.otherwise();
    bool checkUpdates = settingKeys.preferences.checkUpdates.otherwise();
    bool allowStats = settingKeys.preferences.allowStats.otherwise();
    /// Spelling provider, 0 to 3; another number ticks no option and is kept.
    int provider = settingKeys.spelling.provider.otherwise();

    bool operator==(const ProgramOptions &) const = default;
};

/// Reads what the store keeps. `ownFont` is the text area's own font: it stands in for what the store doesn't
/// say of the proportional one. A provider that can't be read is the default: what can't be read must not
/// keep the user from the dialog that would put it right.
[[nodiscard]] ProgramOptions loadOptions(const SettingsStore &store, const Font &ownFont = {});
/// The part of them that the text engine needs.
[[nodiscard]] WordOptions loadWordOptions(const SettingsStore &store);

/// The part that a spelling check needs. What can't be read is the default.
[[nodiscard]] TypedTextOptions loadTypedTextOptions(const SettingsStore &store);

/// Writes everything but word wrap, whose toggle writes itself.
void saveOptions(SettingsStore &store, const ProgramOptions &options);

/// Name, " Bold", " Italic", a blank, the rounded size and " pt".
[[nodiscard]] QString FontDescription(const Font &font);

/// "You last checked for updates %0 days ago", or "You have never checked for updates" without a start date
/// that can be read.
[[nodiscard]] QString lastCheckText(const QString &startDate, const QDateTime &now);

} // namespace tolvo
