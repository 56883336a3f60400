// SPDX-License-Identifier: MIT
#include "search/search_form.h"

#include "base/CParams.h"
#include "preferences/settings_keys.h"

#include <algorithm>
#include <array>

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

QString numberOf(SearchMode mode) {
    return QString::number(static_cast<int>(mode));
}

void noteMode(QStringList &modes, const QString &text, SearchMode mode) {
    if (text.isEmpty())
        return;
    modes.removeIf([&text](const QString &entry) { return QStringView(entry).sliced(1) == text; });
    modes.prepend(numberOf(mode) + text);
}

void putInFront(QStringList &list, const QString &text) {
    list.removeAll(text);
    list.prepend(text);
}

} // namespace

void SearchForm::load(const SettingsStore &store) {
    request.load(store);
    expanded = request.specialChars || get(store, keys.expanded);
    copyForm = get(store, settingKeys.matchCopy.form);
    copyInPlace = get(store, settingKeys.matchCopy.inPlace);
    recentFinds = loadList(store, keys.recentFinds);
    recentReplaces = loadList(store, keys.recentReplaces);
    modesOfTexts = get(store, keys.modesOfTexts);
    modesOfTexts.removeAll(QString());
    request.find = recentFinds.value(0);
    request.replace = recentReplaces.value(0);
}

void SearchForm::save(SettingsStore &store) const {
    SettingsStore::Transaction transaction(store);
    request.save(store);
    saveCopy(store);
    set(store, keys.expanded, expanded);
    set(store, keys.recentFinds, recentFinds.first(std::min(recentFinds.size(), longestList)));
    set(store, keys.recentReplaces, recentReplaces.first(std::min(recentReplaces.size(), longestList)));
    set(store, keys.modesOfTexts, modesOfTexts.first(std::min(modesOfTexts.size(), 2 * longestList)));
    transaction.commit();
}

void SearchForm::saveCopy(SettingsStore &store) const {
    set(store, settingKeys.matchCopy.form, copyForm);
    set(store, settingKeys.matchCopy.inPlace, copyInPlace);
}

QString SearchForm::optionsOn(SearchRole role) const {
    static const SearchRequest atFirst;
    constexpr std::array anchors{u"at start of word", u"at end of word", u"at start of line",
                                 u"at end of line", u""};
    QStringList on;
    const auto add = [&on](bool isOn, const char16_t *name) {
        if (isOn)
            on += QString::fromUtf16(name);
    };
    add(request.matchCase, u"match case");
    add(request.wholeWords && wholeWordsEnabled(), u"whole words");
    add(request.smartReplace && role == SearchRole::Replace, u"smart replace");
    add(request.specialChars && specialCharsShown(), u"special characters");
    if (wildcardsShown()) {
        add(request.anchor != Anchor::Anywhere, anchors[static_cast<std::size_t>(request.anchor)]);
        add(request.decimalSep != atFirst.decimalSep || request.groupingSep != atFirst.groupingSep,
            u"other separators in numbers");
    }
    if (!on.isEmpty())
        on.front().front() = on.front().front().toUpper();
    return on.join(QStringLiteral(", "));
}

void SearchForm::readSettings(const QString &settings, SearchRole role) {
    if (settings.isEmpty())
        return;
    const CParams params(settings);
    const RequestReading reading = windowReading(request);
    if (role != SearchRole::CopyMatches) {
        request = readRequest(params, role == SearchRole::Replace, reading);
        return;
    }
    const MatchCopy copy = readMatchCopy(params, reading);
    request = copy.search;
    copyForm = copy.form;
    copyInPlace = copy.inPlace;
}

QString SearchForm::settings(SearchRole role) const {
    return role == SearchRole::CopyMatches ? settingsString(matchCopy())
                                           : settingsString(request, role == SearchRole::Replace);
}

std::optional<SearchForm::Unkept> SearchForm::unkeptText(SearchRole role) const {
    // A regular expression knows the escape by itself; so do the replacements of all but simple search.
    const auto otherwise = [&](SearchText text, bool knowsEscapes) -> Unkept {
        if (knowsEscapes || request.specialChars)
            return {text, false, CParams::refusal(QStringLiteral("Please write ,\\x20 instead"))};
        return {text, true,
                CParams::refusal(
                    QStringLiteral("Please check \"Allow special characters\" and write ,\\x20 instead"))};
    };
    if (!CParams::canHold(request.find))
        return otherwise(SearchText::Find, request.mode == SearchMode::RegularExpression);
    if (role == SearchRole::Replace && !CParams::canHold(request.replace))
        return otherwise(SearchText::Replace, request.mode != SearchMode::Simple);
    if (role == SearchRole::CopyMatches && !CParams::canHold(copyForm))
        return otherwise(SearchText::Form, request.mode != SearchMode::Simple);
    if (request.mode != SearchMode::Wildcard)
        return {};
    for (const auto &[separator, text] : {std::pair(&request.decimalSep, SearchText::DecimalSep),
                                          std::pair(&request.groupingSep, SearchText::GroupingSep)}) {
        if (!CParams::canHold(*separator))
            return Unkept{text, false, CParams::refusal(QStringLiteral("Please enter another separator"))};
    }
    return {};
}

void SearchForm::rememberTexts() {
    if (request.find.isEmpty())
        return;
    putInFront(recentReplaces, request.replace);
    putInFront(recentFinds, request.find);
    for (const QString &text : {request.replace, request.find})
        noteMode(modesOfTexts, text, request.mode);
}

QString SearchForm::modeOf(const QString &text) const {
    if (text.isEmpty())
        return {};
    const std::pair<SearchMode, QString> modes[] = {
        {SearchMode::Simple, QStringLiteral("Simple Search")},
        {SearchMode::Wildcard, QStringLiteral("Wildcard Search")},
        {SearchMode::RegularExpression, QStringLiteral("Regular Expression")}};
    for (const auto &[mode, name] : modes) {
        if (modesOfTexts.contains(numberOf(mode) + text))
            return name;
    }
    return {};
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
