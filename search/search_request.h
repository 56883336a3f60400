// SPDX-License-Identifier: MIT
// One search: what is looked for, how, and what takes its place. The window and the steps of PowerButtons
// make requests; CSearch::run carries them out. The fields are listed once (search_request.cpp), with their
// keys in the settings store and in a settings string.
#pragma once

#include "search/wildcard_translation.h"

#include <QString>
#include <optional>

namespace tolvo {

class CParams;
class SettingsStore;

/// By the numbers in the store and in settings strings.
enum class SearchMode { Simple = 1, Wildcard, RegularExpression };

enum class SearchVerb { Search, FindAll, Replace, ReplaceAll };

enum class SearchDirection { Down, Up, FromStart };

struct SearchRequest {
    SearchMode mode = SearchMode::Simple;
    QString find = {};
    QString replace = {};
    std::optional<SearchDirection> direction = {};
    bool matchCase = false;
    bool wholeWords = false;
    bool smartReplace = true;
    bool specialChars = false;
    bool replaceAll = false;
    Anchor anchor = Anchor::Anywhere;
    QString decimalSep = QStringLiteral(".");
    QString groupingSep = QStringLiteral(",");

    /// What Search and Replace do: `replaceAll` chooses between the two ways of replacing.
    [[nodiscard]] SearchVerb verb(bool replacing) const {
        if (!replacing)
            return SearchVerb::Search;
        return replaceAll ? SearchVerb::ReplaceAll : SearchVerb::Replace;
    }
    /// What the translation of wildcards needs of it.
    [[nodiscard]] WildcardOptions wildcardOptions() const {
        return {
            .wholeWords = wholeWords, .anchor = anchor, .decimalSep = decimalSep, .groupingSep = groupingSep};
    }

    /// The fields that the section `Search` holds. A number or direction that makes no sense gives the
    /// default.
    void load(const SettingsStore &store);
    /// Writes them; a direction that isn't chosen leaves the stored one.
    void save(SettingsStore &store) const;
};

/// What a step of a PowerButton reads otherwise than the window does. Stored buttons rely on all of it.
struct RequestReading {
    SearchRequest missing = {};    ///< what keys that are not there mean; a missing mode is simple search
    bool unknownModeFails = false; ///< otherwise it is simple search too
    QStringView groupingSepKey = u"GroupingSep";
    /// D and S change places in the replacement of one match of a regular expression.
    bool swapsDownAndFromStart = false;
};
/// Missing keys leave the window as it is.
[[nodiscard]] RequestReading windowReading(const SearchRequest &present);
/// Missing keys are empty or off. The separator that the window writes is not the one that is read: a # in a
/// stored search matches numbers without grouping.
[[nodiscard]] RequestReading actionReading();

/// Reads a settings string. Keys that the mode or a search without replacing doesn't use are passed by. Fails
/// as `reading` says.
///   "Mode=1, Find=a, Direction=U" looks up for "a", literally.
[[nodiscard]] SearchRequest readRequest(const CParams &params, bool replacing, const RequestReading &reading);

/// The settings string, keys in the order in which every PowerButton stores them. No direction is written if
/// none is chosen. Comma and blank in a text cut it: CParams::canHold().
///   "Mode=1, Find=a, MatchCase=0, Direction=U, WholeWords=0, SpecialChars=0"
[[nodiscard]] QString settingsString(const SearchRequest &request, bool replacing);

} // namespace tolvo
