// SPDX-License-Identifier: MIT
#include "search/search_form.h"

#include "base/CParams.h"
#include "base/application.h"
#include "base/conversions.h"
#include "base/numbers.h"
#include "preferences/settings_store.h"
#include "preferences/settings_table.h"
#include "search/joined.h"

#include <algorithm>
#include <array>

namespace tolvo {

namespace {

constexpr QStringView section = u"Search";
const QString findsSection = QStringLiteral("Search\\SearchMRU");
const QString replacesSection = QStringLiteral("Search\\ReplaceMRU");
constexpr qsizetype longestList = 20;

struct DirectionName {
    SearchDirection direction;
    QStringView stored;
    QStringView letter;
};
constexpr std::array<DirectionName, 3> directions = {{{SearchDirection::Down, u"Down", u"D"},
                                                      {SearchDirection::Up, u"Up", u"U"},
                                                      {SearchDirection::FromStart, u"Start", u"S"}}};

int numberIn(const QString &text, int low, int high, int otherwise) {
    const double number = ValueOf(text);
    return number >= low && number <= high ? static_cast<int>(number) : otherwise;
}

SearchMode modeOf(const QString &number) {
    return static_cast<SearchMode>(numberIn(number, 1, 3, 1) - 1);
}

/// An entry's place is that of its key's letter. Places without an entry hold a "-"; keys that are no such
/// letter have no place.
QStringList loadList(const SettingsStore &store, const QString &listSection) {
    const auto pairs =
        store.GetAllSettings(applicationTitle(), listSection).value_or(QList<SettingsStore::Pair>());
    QStringList entries(pairs.size(), QStringLiteral("-"));
    for (const auto &[key, value] : pairs) {
        const qsizetype place = key.size() == 1 ? key.front().unicode() - u'a' : -1;
        if (place >= 0 && place < entries.size())
            entries[place] = value;
    }
    return entries;
}

void putInFront(QStringList &list, const QString &text) {
    list.removeAll(text);
    list.prepend(text);
}

} // namespace

void SearchForm::load(const SettingsStore &store) {
    const auto read = [&](QStringView key) { return readSetting(store, section, key); };
    wholeWords = readFlag(store, section, u"WholeWords");
    matchCase = readFlag(store, section, u"MatchCase");
    smartReplace = readFlag(store, section, u"SmartReplace");
    specialChars = readFlag(store, section, u"AllowSpecial");
    const QString stored = read(u"Direction");
    for (const DirectionName &name : directions) {
        if (stored == name.stored)
            direction = name.direction;
    }
    expanded = specialChars || readFlag(store, section, u"More");
    anchor = numberIn(read(u"Anchor"), 0, anywhere, anywhere);
    decimalSep = read(u"DecimalSep");
    groupingSep = read(u"GroupingSep");
    mode = modeOf(read(u"Tab"));
    recentFinds = loadList(store, findsSection);
    recentReplaces = loadList(store, replacesSection);
    find = recentFinds.value(0);
    replace = recentReplaces.value(0);
}

void SearchForm::save(SettingsStore &store) const {
    SettingsStore::Transaction transaction(store);
    const auto write = [&](QStringView key, const QString &value) {
        writeSetting(store, section, key, value);
    };
    write(u"WholeWords", flagDigit(wholeWords));
    write(u"MatchCase", flagDigit(matchCase));
    write(u"SmartReplace", flagDigit(smartReplace));
    write(u"AllowSpecial", flagDigit(specialChars));
    for (const DirectionName &name : directions) {
        if (direction == name.direction)
            write(u"Direction", name.stored.toString());
    }
    write(u"More", flagWord(expanded));
    write(u"Anchor", QString::number(anchor));
    write(u"DecimalSep", decimalSep);
    write(u"GroupingSep", groupingSep);
    write(u"Tab", QString::number(static_cast<int>(mode) + 1));
    writeList(store, findsSection, recentFinds.first(std::min(recentFinds.size(), longestList)));
    writeList(store, replacesSection, recentReplaces.first(std::min(recentReplaces.size(), longestList)));
    transaction.commit();
}

void SearchForm::readRequest(const QString &request, bool bReplace) {
    if (request.isEmpty())
        return;
    const CParams params(request);
    const auto take = [&](const QString &key, auto set) {
        if (params.contains(key))
            set(params.arg(key));
    };
    const auto text = [&](const QString &key, QString &value) {
        take(key, [&](const QString &stored) { value = stored; });
    };
    const auto flag = [&](const QString &key, bool &value) {
        take(key, [&](const QString &stored) { value = saysYes(stored); });
    };
    mode = modeOf(params.arg(QStringLiteral("Mode")));
    text(QStringLiteral("Find"), find);
    flag(QStringLiteral("MatchCase"), matchCase);
    flag(QStringLiteral("WholeWords"), wholeWords);
    if (mode != SearchMode::RegularExpression)
        flag(QStringLiteral("SpecialChars"), specialChars);
    for (const DirectionName &name : directions) {
        if (params.arg(QStringLiteral("Direction")) == name.letter)
            direction = name.direction;
    }
    if (bReplace) {
        text(QStringLiteral("Replace"), replace);
        flag(QStringLiteral("SmartReplace"), smartReplace);
        flag(QStringLiteral("ReplaceAll"), replaceAll);
    }
    if (mode == SearchMode::Wildcard) {
        take(QStringLiteral("Anchor"),
             [&](const QString &stored) { anchor = numberIn(stored, 0, anywhere, anywhere); });
        text(QStringLiteral("DecimalSep"), decimalSep);
        text(QStringLiteral("GroupingSep"), groupingSep);
    }
}

QString SearchForm::request(bool bReplace) const {
    QString result = QStringLiteral("Mode=") + QString::number(static_cast<int>(mode) + 1);
    const auto add = [&](QStringView key, QStringView value) { result += joined({u", ", key, u"=", value}); };
    add(u"Find", find);
    add(u"MatchCase", flagDigit(matchCase));
    for (const DirectionName &name : directions) {
        if (direction == name.direction)
            add(u"Direction", name.letter);
    }
    add(u"WholeWords", flagDigit(wholeWords));
    if (mode != SearchMode::RegularExpression)
        add(u"SpecialChars", flagDigit(specialChars));
    if (bReplace) {
        add(u"Replace", replace);
        add(u"SmartReplace", flagDigit(smartReplace));
        add(u"ReplaceAll", flagDigit(replaceAll));
    }
    if (mode == SearchMode::Wildcard) {
        add(u"Anchor", QString::number(anchor));
        add(u"DecimalSep", decimalSep);
        add(u"GroupingSep", groupingSep);
    }
    return result;
}

std::optional<SearchForm::Unkept> SearchForm::unkeptText(bool bReplace) const {
    // A regular expression knows the escape by itself; so do the replacements of all but simple search.
    const auto otherwise = [&](QString SearchForm::*text, bool knowsEscapes) -> Unkept {
        if (knowsEscapes || specialChars)
            return {text, false, CParams::refusal(QStringLiteral("Please write ,\\x20 instead"))};
        return {text, true,
                CParams::refusal(
                    QStringLiteral("Please check \"Allow special characters\" and write ,\\x20 instead"))};
    };
    if (!CParams::canHold(find))
        return otherwise(&SearchForm::find, mode == SearchMode::RegularExpression);
    if (bReplace && !CParams::canHold(replace))
        return otherwise(&SearchForm::replace, mode != SearchMode::Simple);
    if (mode != SearchMode::Wildcard)
        return {};
    for (QString SearchForm::*separator : {&SearchForm::decimalSep, &SearchForm::groupingSep}) {
        if (!CParams::canHold(this->*separator))
            return Unkept{separator, false,
                          CParams::refusal(QStringLiteral("Please enter another separator"))};
    }
    return {};
}

void SearchForm::rememberTexts() {
    if (find.isEmpty())
        return;
    putInFront(recentReplaces, replace);
    putInFront(recentFinds, find);
}

void SearchForm::chooseAnchor(int index) {
    anchor = index;
    if (index == 0 || index == 1)
        wholeWords = false;
}

void SearchForm::checkWholeWords(bool on) {
    wholeWords = on;
    if (on && (anchor == 0 || anchor == 1))
        anchor = anywhere;
}

WildcardOptions SearchForm::wildcardOptions() const {
    return {.wholeWords = wholeWords, .anchor = anchor, .decimalSep = decimalSep, .groupingSep = groupingSep};
}

} // namespace tolvo
