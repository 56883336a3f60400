// SPDX-License-Identifier: MIT
// The settings of the six tools that have any. Each struct declares its fields once (tool_settings.cpp): the
// key in the settings store, the key in a settings string, the written form, the limits. Loading, saving,
// settings strings and dialogs all read that list. A struct is its dialog's state: loaded at first use, kept
// for the run, saved at its end.
#pragma once

#include "base/CParams.h"

#include <QString>
#include <QStringList>

namespace tolvo {

class SettingsStore;

/// Section "Indent", tools foIND and foUNI.
struct IndentSettings {
    enum Choice { WithTab = 0, WithSpaces = 1, WithText = 2 };
    static constexpr int mostRecentTexts = 20;
    int choice = WithTab;
    int spaces = 4;
    QString text;
    QStringList recentTexts; ///< newest first; only in the store

    /// What the tool puts before a line.
    [[nodiscard]] QString prefix() const;
    bool operator==(const IndentSettings &) const = default;
};

/// Section "Wordwrap", tool foWRP.
struct WordWrapSettings {
    static constexpr int narrowest = 12;
    static constexpr int widest = 255;
    int width = 50;
    bool justify = false;
    bool hanging = false;
    bool tab = true;
    bool operator==(const WordWrapSettings &) const = default;
};

/// Section "RemLines", tool foREM.
struct RemoveLinesSettings {
    bool single = false;
    bool multiple = true;
    bool operator==(const RemoveLinesSettings &) const = default;
};

/// Section "BulletList", tool liBUL.
struct BulletSettings {
    static constexpr int mostTypedSpaces = 12; ///< what the dialog takes
    QString bullet = QStringLiteral(u"\u2022");
    bool tab = true;
    int spaces = 2;

    /// The bullet followed by a TAB or blanks.
    [[nodiscard]] QString prefix() const;
    bool operator==(const BulletSettings &) const = default;
};

/// Section "NumList", tool liNUM.
struct NumberListSettings {
    static constexpr int highestTypedStart = 999; ///< what the dialog takes
    static constexpr int mostTypedSpaces = 12;    ///< the same
    int style = 0;                                ///< 0 to 5, see text/numbering.h
    int start = 1;
    bool renumber = false;
    int followChar = 0; ///< 0 to 3
    bool tab = true;
    int spaces = 4;
    bool operator==(const NumberListSettings &) const = default;
};

/// Section "NumLines", tool liREN.
struct LineNumberSettings {
    int start = 1;
    int step = 1;
    int every = 1;
    bool renumber = true;
    bool ignoreBlanks = true;
    bool pad = true;
    bool rangeRight = false;
    bool operator==(const LineNumberSettings &) const = default;
};

// Each of the functions below exists for the six structs.

/// The values last used, from the store. A stored number that can't be read counts as 0, and as the nearest
/// value that is allowed.
template <class Settings>
[[nodiscard]] Settings loadSettings(const SettingsStore &store);

template <class Settings>
void saveSettings(SettingsStore &store, const Settings &settings);

/// The settings string, keys and order as every PowerButton stores them. A text that it can't hold is left
/// out: the dialogs refuse one that the tool would use.
template <class Settings>
[[nodiscard]] QString settingsString(const Settings &settings);

/// For a dialog: takes over the keys that are there and leaves the others alone; a text that is no number
/// counts as 0.
template <class Settings>
void applySettings(Settings &settings, const CParams &params);

/// For the execution of an Action: every key is converted strictly, a missing or wrong one is a Failure.
template <class Settings>
[[nodiscard]] Settings settingsFromAction(const CParams &params);

} // namespace tolvo
