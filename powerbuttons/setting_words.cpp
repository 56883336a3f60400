// SPDX-License-Identifier: MIT
#include "powerbuttons/setting_words.h"

#include "base/CParams.h"
#include "base/numbers.h"
#include "text/writing_settings.h"

#include <QStringList>
#include <algorithm>
#include <array>
#include <span>

namespace tolvo {

namespace {

/// What becomes of a value: a switch is named while it is on, a number follows its name, a text stands in
/// quotes, one of some choices has a word of its own.
enum class Kind { Switch, Number, Text, Choice };

struct SettingWords {
    QStringView key;
    Kind kind;
    QStringView words;
    std::span<const QStringView> choices = {}; ///< by their numbers; empty: not worth a word
    QStringView tool = {};                     ///< the token of the one tool whose key is meant
};

using Choices = std::array<QStringView, 7>;
constexpr Choices modes = {u"", u"", u"wildcard", u"regular expression"};
constexpr Choices numberStyles = {u"1 2 3", u"a b c", u"A B C", u"i ii iii", u"I II III", u"1.1 1.2"};
constexpr Choices signsAfterNumbers = {u"", u"with stop", u"with bracket", u"in brackets"};
constexpr Choices indents = {u"a tab", u"spaces", u"a text"};
constexpr Choices directions = {u"", u"up", u"from start"};
constexpr Choices orders = {u"language", u"natural order", u"number", u"characters"};
constexpr Choices kindsOfCase = {u"upper case", u"lower case", u"title case"};

constexpr std::array choiceWords = {
    SettingWords{u"Mode", Kind::Choice, u"", modes},
    SettingWords{u"Style", Kind::Choice, u"", numberStyles},
    SettingWords{u"FollowChar", Kind::Choice, u"", signsAfterNumbers},
    SettingWords{u"RadioButton", Kind::Choice, u"", indents},
    SettingWords{u"Direction", Kind::Choice, u"", directions},
    SettingWords{u"Anchor", Kind::Choice, u""},
    SettingWords{u"DecimalSep", Kind::Choice, u""},
    SettingWords{u"GroupingSep", Kind::Choice, u""},
    SettingWords{u"Order", Kind::Choice, u"by ", orders},
    SettingWords{u"Kind", Kind::Choice, u"", kindsOfCase},
    SettingWords{u"Language", Kind::Choice, u"", TypographySettings::words, u"tyTYP"},
    SettingWords{u"Language", Kind::Choice, u"", LanguageCaseSettings::languages, u"ccLAN"},
    SettingWords{u"Language", Kind::Text, u"language", {}, u"lnSRT"},
};

constexpr std::array plainWords = {
    SettingWords{u"Find", Kind::Text, u"find"},
    SettingWords{u"Replace", Kind::Text, u"replace with"},
    SettingWords{u"Pattern", Kind::Text, u"pattern"},
    SettingWords{u"Form", Kind::Text, u"as"},
    SettingWords{u"Bullet", Kind::Text, u"bullet"},
    SettingWords{u"Before", Kind::Text, u"before"},
    SettingWords{u"After", Kind::Text, u"after"},
    SettingWords{u"Separator", Kind::Text, u"separator"},
    SettingWords{u"Text", Kind::Text, u"text"},
    SettingWords{u"Width", Kind::Number, u"width"},
    SettingWords{u"Start", Kind::Number, u"start at"},
    SettingWords{u"First", Kind::Number, u"first"},
    SettingWords{u"Step", Kind::Number, u"step"},
    SettingWords{u"Every", Kind::Number, u"every"},
    SettingWords{u"Column", Kind::Number, u"column"},
    SettingWords{u"Columns", Kind::Text, u"columns"},
    SettingWords{u"Head", Kind::Number, u"head lines"},
    SettingWords{u"Spaces", Kind::Number, u"spaces"},
    SettingWords{u"Language", Kind::Number, u"language"},
    SettingWords{u"LangID", Kind::Number, u"language"},
    SettingWords{u"Single", Kind::Switch, u"single"},
    SettingWords{u"Multiple", Kind::Switch, u"multiple"},
    SettingWords{u"MatchCase", Kind::Switch, u"match case"},
    SettingWords{u"WholeWords", Kind::Switch, u"whole words"},
    SettingWords{u"SpecialChars", Kind::Switch, u"special characters"},
    SettingWords{u"SmartReplace", Kind::Switch, u"smart replace"},
    SettingWords{u"ReplaceAll", Kind::Switch, u"all"},
    SettingWords{u"Justify", Kind::Switch, u"justify"},
    SettingWords{u"Hanging", Kind::Switch, u"hanging"},
    SettingWords{u"Tab", Kind::Switch, u"tab"},
    SettingWords{u"Renumber", Kind::Switch, u"renumber"},
    SettingWords{u"IgnoreBlanks", Kind::Switch, u"ignore blanks"},
    SettingWords{u"IgnoreCase", Kind::Switch, u"ignore case"},
    SettingWords{u"Pad", Kind::Switch, u"pad"},
    SettingWords{u"RangeRight", Kind::Switch, u"range right"},
    SettingWords{u"Descending", Kind::Switch, u"descending"},
    SettingWords{u"Unique", Kind::Switch, u"unique"},
    SettingWords{u"KeepLast", Kind::Switch, u"keep last"},
    SettingWords{u"Neighbours", Kind::Switch, u"neighbours only"},
    SettingWords{u"LeaveBlanks", Kind::Switch, u"leave blank lines"},
    SettingWords{u"Counts", Kind::Switch, u"with counts"},
    SettingWords{u"Drop", Kind::Switch, u"drop"},
    SettingWords{u"SkipBlanks", Kind::Switch, u"skip blank lines"},
    SettingWords{u"Join", Kind::Switch, u"join"},
    SettingWords{u"Trim", Kind::Switch, u"trim"},
    SettingWords{u"LeaveOutEmpty", Kind::Switch, u"leave out empty"},
    SettingWords{u"Blanks", Kind::Switch, u"no-break spaces"},
    SettingWords{u"InPlace", Kind::Switch, u"in place"},
    SettingWords{u"Fill", Kind::Switch, u"fill"},
};

const SettingWords *wordsOf(QStringView key, QStringView tool) {
    const auto isIt = [key, tool](const SettingWords &words) {
        return words.key == key && (words.tool.isEmpty() || words.tool == tool);
    };
    if (const auto *const choice = std::ranges::find_if(choiceWords, isIt); choice != choiceWords.end())
        return choice;
    const auto *const plain = std::ranges::find_if(plainWords, isIt);
    return plain == plainWords.end() ? nullptr : plain;
}

QString inWords(const SettingWords &setting, const QString &value) {
    switch (setting.kind) {
    case Kind::Switch: {
        const bool on =
            value.compare(QLatin1StringView("True"), Qt::CaseInsensitive) == 0 || ValueOf(value) != 0;
        return on ? setting.words.toString() : QString();
    }
    case Kind::Number:
        return setting.words.toString() + u' ' + value;
    case Kind::Text:
        return value.isEmpty() ? QString()
                               : setting.words.toString() + QStringLiteral(u" \u201c") + value + u'\u201d';
    case Kind::Choice:
        break;
    }
    constexpr QStringView letters = u"DUS"; // of the directions, the one choice that letters stand for
    const bool isLetter = value.size() == 1 && letters.contains(value.front());
    const auto number =
        static_cast<std::size_t>(isLetter ? letters.indexOf(value.front()) : value.toLongLong());
    const QStringView choice = number < setting.choices.size() ? setting.choices[number] : QStringView();
    return choice.isEmpty() ? QString() : setting.words.toString() + choice.toString();
}

/// A pair that another one makes idle: blanks beside a TAB or a text, a text beside blanks.
bool isIdle(QStringView key, const CAction &action) {
    const QString way = action.Param(QStringLiteral("RadioButton"));
    const bool tab =
        action.Param(QStringLiteral("Tab")).compare(QLatin1StringView("True"), Qt::CaseInsensitive) == 0;
    if (key == u"Spaces")
        return way.isEmpty() ? tab : way != QLatin1StringView("1");
    if (key == u"Text")
        return !way.isEmpty() && way != QLatin1StringView("2");
    return key == u"RadioButton" && way != QLatin1StringView("0");
}

} // namespace

QString settingsInWords(const CAction &action) {
    QStringList words;
    QStringList seen;
    const QStringList pairs = action.Details().split(settingsSeparator);
    for (const QString &pair : pairs) {
        const QString key = pair.section(u'=', 0, 0).trimmed();
        if (seen.contains(key) || isIdle(key, action))
            continue; // of two pairs with one key the first counts
        seen += key;
        const SettingWords *setting = wordsOf(key, action.Tool()->Token());
        const QString said = setting != nullptr ? inWords(*setting, action.Param(key)) : pair;
        if (!said.isEmpty())
            words += said;
    }
    return words.join(QStringLiteral(", "));
}

} // namespace tolvo
