// SPDX-License-Identifier: MIT
// The search window without its widgets: what its controls hold, how they depend on each other, and what is
// remembered.
#pragma once

#include "search/search_request.h"

#include <QString>
#include <QStringList>
#include <optional>

namespace tolvo {

struct SearchForm {
    SearchRequest request;
    QStringList recentFinds; ///< the newest first
    QStringList recentReplaces;
    bool expanded = false; ///< the button says "Less"

    /// The section `Search`. Values that make no sense give the default. With special characters on, the form
    /// is expanded whatever was stored.
    void load(const SettingsStore &store);
    /// Writes the section; of each list no more than 20 entries.
    void save(SettingsStore &store) const;

    /// Takes over a settings string. An empty one changes nothing.
    void readSettings(const QString &settings, bool replacing);
    /// The first of its texts that its settings string can't hold.
    struct Unkept {
        QString SearchRequest::*text;
        bool needsSpecialChars; ///< the text can be written otherwise, but not with special characters off
        QString message;        ///< for the user, with the other way to write it if there is one
    };
    [[nodiscard]] std::optional<Unkept> unkeptText(bool replacing) const;

    /// Puts both texts in front of their lists. Nothing for an empty search text.
    void rememberTexts();

    /// The start and the end of a word go together with any match, but not with whole words only.
    void chooseAnchor(Anchor anchor);
    void checkWholeWords(bool on);

    /// Something is on that only the larger layout shows.
    [[nodiscard]] bool isOnUnseen() const {
        return request.matchCase || (request.wholeWords && wholeWordsEnabled()) ||
               (request.specialChars && specialCharsShown()) ||
               (request.anchor != Anchor::Anywhere && wildcardsShown());
    }

    /// Which options mean something in the mode that is on; the window offers these alone.
    [[nodiscard]] bool wholeWordsEnabled() const { return request.mode != SearchMode::RegularExpression; }
    [[nodiscard]] bool specialCharsShown() const { return request.mode != SearchMode::RegularExpression; }
    [[nodiscard]] bool wildcardsShown() const { return request.mode == SearchMode::Wildcard; }
};

} // namespace tolvo
