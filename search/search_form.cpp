// SPDX-License-Identifier: MIT
#include "search/search_form.h"

#include "base/CParams.h"
#include "preferences/settings_keys.h"

#include <algorithm>

namespace tolvo {

namespace {

constexpr const SearchKeys &keys = settingKeys.search;
constexpr qsizetype longestList = 20;

/// An entry's place is that of its key's letter. Places without an entry hold a "-"; keys that are no such
/// letter have no place.
QStringList loadList(const SettingsStore &store, const SettingList &list) {
    const auto pairs = pairsOf(store, list.section);
    QStringList entries(pairs.size(), QStringLiteral("-"));
    for (const auto &[key, value] : pairs) {
        const qsizetype place = key.size() == 1 ? key.front().unicode() - u'a' : -1;
        if (place >= 0 && place < entries.size())
            entries[place] = value;
    }
    return entries;
}

bool isOfWord(Anchor anchor) {
    return anchor == Anchor::WordStart || anchor == Anchor::WordEnd;
}

void putInFront(QStringList &list, const QString &text) {
    list.removeAll(text);
    list.prepend(text);
}

} // namespace

void SearchForm::load(const SettingsStore &store) {
    request.load(store);
    expanded = request.specialChars || get(store, keys.expanded);
    recentFinds = loadList(store, keys.recentFinds);
    recentReplaces = loadList(store, keys.recentReplaces);
    request.find = recentFinds.value(0);
    request.replace = recentReplaces.value(0);
}

void SearchForm::save(SettingsStore &store) const {
    SettingsStore::Transaction transaction(store);
    request.save(store);
    set(store, keys.expanded, expanded);
    set(store, keys.recentFinds, recentFinds.first(std::min(recentFinds.size(), longestList)));
    set(store, keys.recentReplaces, recentReplaces.first(std::min(recentReplaces.size(), longestList)));
    transaction.commit();
}

void SearchForm::readSettings(const QString &settings, bool replacing) {
    if (!settings.isEmpty())
        request = readRequest(CParams(settings), replacing, windowReading(request));
}

std::optional<SearchForm::Unkept> SearchForm::unkeptText(bool replacing) const {
    // A regular expression knows the escape by itself; so do the replacements of all but simple search.
    const auto otherwise = [&](QString SearchRequest::*text, bool knowsEscapes) -> Unkept {
        if (knowsEscapes || request.specialChars)
            return {text, false, CParams::refusal(QStringLiteral("Please write ,\\x20 instead"))};
        return {text, true,
                CParams::refusal(
                    QStringLiteral("Please check \"Allow special characters\" and write ,\\x20 instead"))};
    };
    if (!CParams::canHold(request.find))
        return otherwise(&SearchRequest::find, request.mode == SearchMode::RegularExpression);
    if (replacing && !CParams::canHold(request.replace))
        return otherwise(&SearchRequest::replace, request.mode != SearchMode::Simple);
    if (request.mode != SearchMode::Wildcard)
        return {};
    for (QString SearchRequest::*separator : {&SearchRequest::decimalSep, &SearchRequest::groupingSep}) {
        if (!CParams::canHold(request.*separator))
            return Unkept{separator, false,
                          CParams::refusal(QStringLiteral("Please enter another separator"))};
    }
    return {};
}

void SearchForm::rememberTexts() {
    if (request.find.isEmpty())
        return;
    putInFront(recentReplaces, request.replace);
    putInFront(recentFinds, request.find);
}

void SearchForm::chooseAnchor(Anchor anchor) {
    request.anchor = anchor;
    if (isOfWord(anchor))
        request.wholeWords = false;
}

void SearchForm::checkWholeWords(bool on) {
    request.wholeWords = on;
    if (on && isOfWord(request.anchor))
        request.anchor = Anchor::Anywhere;
}

} // namespace tolvo
