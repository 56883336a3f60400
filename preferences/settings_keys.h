// SPDX-License-Identifier: MIT
// Every key of the two trees, one line each: written form, section, name, default. The settings of the tools
// with dialogs stand with the tools.
#pragma once

#include "preferences/setting.h"

namespace tolvo {

/// The keys of one font. Those of the proportional font have no default: the text area's own font stands in.
struct FontKeys {
    Setting<forms::Text> name;
    Setting<forms::Word> bold;
    Setting<forms::Word> italic;
    Setting<forms::LeadingNumber> size; ///< points
};

struct PreferenceKeys {
    static constexpr Section section{u"Preferences"};

    Setting<forms::EqualsOne> wordWrap{section, u"Wordwrap", false};
    Setting<forms::EqualsOne> showTips{section, u"Show Tips at Startup", true};
    Setting<forms::EqualsOne> useProportional{section, u"FontUseProp", true};
    FontKeys proportional{{section, u"Prop_FontName"},
                          {section, u"Prop_FontBold"},
                          {section, u"Prop_FontItalic"},
                          {section, u"Prop_FontSize"}};
    FontKeys fixed{{section, u"Fixed_FontName", u"Courier New"},
                   {section, u"Fixed_FontBold", false},
                   {section, u"Fixed_FontItalic", false},
                   {section, u"Fixed_FontSize", 10}};
    Setting<forms::EqualsOne> sounds{section, u"Sounds", true};
    Setting<forms::Check> checkUpdates{section, u"CheckUpdates", true}; // the weekly check asks allowStats
    Setting<forms::ComparedDigit> allowStats{section, u"AllowStats", true};
    Setting<forms::Word> fullDomainList{section, u"TLD_Full", false};
    SettingList userExtensions{{u"Preferences\\UserFileExtensions"}}; // without stops
};

struct SpellingKeys {
    static constexpr Section section{u"Spelling"};
    Setting<forms::Integer> provider{section, u"Provider", 1};
    Setting<forms::ComparedWord> useWordDialog{section, u"UseWordDialog", true};
    Setting<forms::Text> dictionaryList{section, u"DictionaryList", u"|<Default>|-1"};
    Setting<forms::Text> quickList{section, u"QuickList", u"-1"};
    Setting<forms::Integer> langID{section, u"LangID", -1};
    Setting<forms::Text> hunLangList{section, u"HunLangList", u"English (GB)|en-gb"}; // name, locale
    Setting<forms::Text> hunQuickList{section, u"HunQuickList", u"<none>"};
    Setting<forms::Text> hunLocale{section, u"HunLocale", u"en-gb"};
};

struct SearchKeys {
    static constexpr Section section{u"Search"};

    Setting<forms::Check> wholeWords{section, u"WholeWords", false};
    Setting<forms::Check> matchCase{section, u"MatchCase", false};
    Setting<forms::Check> smartReplace{section, u"SmartReplace", true};
    Setting<forms::Check> specialChars{section, u"AllowSpecial", false};
    Setting<forms::Text> direction{section, u"Direction", u"Up"}; // "Up", "Down" or "Start"
    Setting<forms::Word> expanded{section, u"More", false};
    Setting<forms::Bounded<0, 4, 4>> anchor{section, u"Anchor", 4};
    Setting<forms::Text> decimalSep{section, u"DecimalSep", u"."};
    Setting<forms::Text> groupingSep{section, u"GroupingSep", u","};
    Setting<forms::Bounded<1, 3, 1>> mode{section, u"Tab", 1}; // from 1
    SettingList recentFinds{{u"Search\\SearchMRU"}};           // the newest first
    SettingList recentReplaces{{u"Search\\ReplaceMRU"}};
    SettingList modesOfTexts{{u"SearchModes"}}; // each the number of a mode, and a text of the two lists
};

/// What was copied of matches last; the search itself has its own keys.
struct MatchCopyKeys {
    static constexpr Section section{u"CopyMatches"};

    Setting<forms::Text> form{section, u"Form", u""};
    Setting<forms::Check> inPlace{section, u"InPlace", false};
};

/// Where the keys of a PowerButton lie; the number counts from 1.
struct ButtonSection {
    static constexpr auto tree = SettingsTree::Settings;
    static constexpr QStringView parent = u"PowerButtons"; ///< of the sections of all PowerButtons
    /// path(3) is "PowerButtons\Button 3".
    [[nodiscard]] static QString path(int number) {
        return QStringLiteral("%1\\Button %2").arg(parent).arg(number);
    }
};

/// Where the keys of an Action lie: the section of the PowerButton, and the name of the Action's own.
struct ActionSection {
    static constexpr auto tree = SettingsTree::Settings;
    /// path(3, "1") is "PowerButtons\Button 3\1".
    [[nodiscard]] static QString path(int number, const QString &action) {
        return ButtonSection::path(number) + u'\\' + action;
    }
};

struct PowerButtonKeys {
    Setting<forms::Text, ButtonSection> name{{}, u"Name", u"<Enter a name>"};
    Setting<forms::Text, ButtonSection> fontName{{}, u"FontName", u""};
    Setting<forms::Number, ButtonSection> fontSize{{}, u"FontSize", 16}; // points; 0 means the default
    Setting<forms::StrictWord, ButtonSection> bold{{}, u"Bold", false};
    Setting<forms::StrictWord, ButtonSection> italic{{}, u"Italic", false};
    Setting<forms::Text, ButtonSection> text{{}, u"Text", u""};
    Setting<forms::Number, ButtonSection> x{{}, u"X", 0};
    Setting<forms::Number, ButtonSection> y{{}, u"Y", 0};
};

struct ActionKeys {
    Setting<forms::Text, ActionSection> token{{}, u"Token"};
    Setting<forms::Text, ActionSection> details{{}, u"Details"}; // a settings string
    Setting<forms::Integer, ActionSection> dlgOption{{}, u"DlgOption"};
    Setting<forms::Check, ActionSection> switchedOff{{}, u"SwitchedOff", false}; // written when it is on
};

/// Where the keys of windows on one kind of screen lie; `screen` is what screenName() gives.
struct ScreenSection {
    static constexpr auto tree = SettingsTree::Settings;
    /// path("1920x1080@1") is "Windows\1920x1080@1".
    [[nodiscard]] static QString path(const QString &screen) { return QStringLiteral("Windows\\") + screen; }
};

/// The places of windows, as in shell/window_place.h.
struct WindowKeys {
    Setting<forms::Text, ScreenSection> main{{}, u"Main", u""};
    Setting<forms::Text, ScreenSection> search{{}, u"Search", u""};
    Setting<forms::Nearest<0, 9999>, ScreenSection> panelWidth{
        {}, u"PanelWidth", 0};                                    // pixels; 0: as at first
    Setting<forms::Text, ScreenSection> sizes{{}, u"Sizes", u""}; // as in shell/window_sizes.h
};

/// The field that finds tools.
struct FinderKeys {
    Setting<forms::Text> lastUsed{{u"Finder"}, u"LastUsed", u""}; // ids between "|", the latest first
};

struct AdvisorKeys {
    Setting<forms::LeadingNumber> lastTip{{u"Advisor"}, u"LastTip", 0}; // from 1
};

/// How the text is looked at.
struct ViewKeys {
    static constexpr Section section{u"View"};

    Setting<forms::Bounded<50, 400, 100>> zoom{section, u"Zoom", 100}; // percent of the font's size
    Setting<forms::Check> marks{section, u"Marks", false};             // for blanks and line ends
    Setting<forms::Check> matches{section, u"Matches", true};          // of the search that is being written
    Setting<forms::Check> searchBelow{section, u"SearchBelow", false}; // the text; on Wayland in any case
    Setting<forms::Bounded<0, 2, 0>> iconNames{section, u"IconNames", 0}; // see shell/ui/names_under_icons.h
};

/// What the main window offers without being asked.
struct HintKeys {
    static constexpr Section section{u"Hints"};

    Setting<forms::Check> troubles{section, u"Troubles", true}; // of a fresh text
    Setting<forms::Text> keepFree{section, u"KeepFree", u""};   // what the tips leave visible (kept_free.h)
    Setting<forms::Text> toolOfTip{section, u"ToolOfTip", u""}; // number of a run, blank, token: to be run
    Setting<forms::Check> powerButtonHint{section, u"PowerButtons", true}; // until it is closed
};

/// What the dialogs of the tools show.
struct PreviewKeys {
    Setting<forms::Check> inText{{u"Preview"}, u"InText", false}; // of the main window
};

/// What a spelling check makes of the way words are typed.
struct TypedTextKeys {
    static constexpr Section section{u"TypedText"};

    Setting<forms::Check> skipDigits{section, u"SkipDigits", false};
    Setting<forms::Check> skipCapitals{section, u"SkipCapitals", false};
    Setting<forms::Check> skipAddresses{section, u"SkipAddresses", false};
    Setting<forms::Check> skipFileNames{section, u"SkipFileNames", false};
    Setting<forms::Check> curlyApostrophe{section, u"CurlyApostrophe", false}; // in the default language too
};

/// The statistics tree. All counters but those of the totals begin anew with each period.
struct StatisticsKeys {
    static constexpr Section usage{u"Usage", SettingsTree::Statistics};

    Setting<forms::Date> startDate{usage, u"StartDate"}; // of the period
    Setting<forms::Count> starts{usage, u"Count", 0};
    CounterSection uses{usage};
    CounterSection totalUses{{u"TotUsage", SettingsTree::Statistics}};
    CounterSection powerButtonUses{{u"PBUsage", SettingsTree::Statistics}};
    CounterSection totalPowerButtonUses{{u"TotPBUsage", SettingsTree::Statistics}};
};

struct Keys {
    PreferenceKeys preferences;
    SpellingKeys spelling;
    SearchKeys search;
    MatchCopyKeys matchCopy;
    PowerButtonKeys powerButton;
    ActionKeys action;
    FinderKeys finder;
    AdvisorKeys advisor;
    WindowKeys windows;
    StatisticsKeys statistics;
    ViewKeys view;
    HintKeys hints;
    PreviewKeys preview;
    TypedTextKeys typedText;
};

inline constexpr Keys settingKeys{};

/// The spelling dialog alone takes a missing provider for 0.
inline constexpr auto providerForSpellingDialog = settingKeys.spelling.provider.withDefault(0);
/// The window of Hunspell's languages has other fields in another order: locale, language, territory.
inline constexpr auto hunLangListForWindow =
    settingKeys.spelling.hunLangList.withDefault(u"en-gb|English (UK)|English (UK)");

} // namespace tolvo
