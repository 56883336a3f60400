// SPDX-License-Identifier: MIT
// The search window without its widgets: what its controls hold, how they depend on each other, and what is
// remembered.
#pragma once

#include "search/match_copy.h"

#include <QString>
#include <QStringList>
#include <optional>

namespace tolvo {

/// What the window is there for; each shows a part of its own.
enum class SearchRole { Search, Replace, CopyMatches };

/// The texts of the window.
enum class SearchText { Find, Replace, Form, DecimalSep, GroupingSep };

struct SearchForm {
    SearchRequest request;
    QString copyForm; ///< what each match that is copied becomes
    bool copyInPlace = false;
    QStringList recentFinds; ///< the newest first
    QStringList recentReplaces;
    QStringList modesOfTexts; ///< the number of a mode before each text
    bool expanded = false;    ///< the button says "Less"

    /// The section `Search`, and that of copied matches. Values that make no sense give the default. With
    /// special characters on, the form is expanded whatever was stored.
    void load(const SettingsStore &store);
    /// Writes the sections; of each list no more than 20 entries.
    void save(SettingsStore &store) const;

    /// Takes over a settings string. An empty one changes nothing.
    void readSettings(const QString &settings, SearchRole role);
    /// What an Action stores.
    [[nodiscard]] QString settings(SearchRole role) const;
    [[nodiscard]] MatchCopy matchCopy() const { return {request, copyForm, copyInPlace}; }
    /// The first of its texts that its settings string can't hold.
    struct Unkept {
        SearchText text;
        bool needsSpecialChars; ///< the text can be written otherwise, but not with special characters off
        QString message;        ///< for the user, with the other way to write it if there is one
    };
    [[nodiscard]] std::optional<Unkept> unkeptText(SearchRole role) const;

    /// Writes what is special to a copy, without the search.
    void saveCopy(SettingsStore &store) const;

    /// Puts both texts in front of their lists. Nothing for an empty search text.
    void rememberTexts();

    /// In which mode a text of the lists was used last, as its tab says it; empty if that is not known.
    [[nodiscard]] QString modeOf(const QString &text) const;

    /// The start and the end of a word go together with any match, but not with whole words only.
    void chooseAnchor(Anchor anchor);
    void checkWholeWords(bool on);

    /// The options that are on and mean something, of those that only the larger layout shows.
    ///   "Match case, whole words"; empty if none is on
    [[nodiscard]] QString optionsOn(SearchRole role) const;
    /// Something is on that only the larger layout shows. Smart replacement, which is on from the start, is
    /// left out.
    [[nodiscard]] bool isOnUnseen() const { return !optionsOn(SearchRole::Search).isEmpty(); }

    /// Which options mean something in the mode that is on; the window offers these alone.
    [[nodiscard]] bool wholeWordsEnabled() const { return request.mode != SearchMode::RegularExpression; }
    [[nodiscard]] bool specialCharsShown() const { return request.mode != SearchMode::RegularExpression; }
    [[nodiscard]] bool wildcardsShown() const { return request.mode == SearchMode::Wildcard; }
};

} // namespace tolvo
