// SPDX-License-Identifier: MIT
// The search window without its widgets: what its controls hold, how they depend on each other, what is
// remembered, and the settings string of a search.
#pragma once

#include "search/search_host.h"
#include "search/wildcard_translation.h"

#include <QString>
#include <QStringList>
#include <optional>

namespace tolvo {

class SettingsStore;

enum class SearchMode { Simple, Wildcard, RegularExpression };

struct SearchForm {
    static constexpr int anywhere = 4;

    SearchMode mode = SearchMode::Simple;
    QString find;
    QString replace;
    QStringList recentFinds; ///< the newest first
    QStringList recentReplaces;
    std::optional<SearchDirection> direction;
    bool matchCase = false;
    bool wholeWords = false;
    bool smartReplace = true;
    bool specialChars = false;
    bool replaceAll = false;
    int anchor = anywhere;
    QString decimalSep = QStringLiteral(".");
    QString groupingSep = QStringLiteral(",");
    bool expanded = false; ///< the button says "Less"

    /// The section `Search`. Values that make no sense give the default. With special characters on, the form
    /// is expanded whatever was stored.
    void load(const SettingsStore &store);
    /// Writes the section; of each list no more than 20 entries.
    void save(SettingsStore &store) const;

    /// Takes over a settings string. An empty one, and keys that are missing, leave the form as it is; only a
    /// missing mode means simple search.
    void readRequest(const QString &request, bool bReplace);
    [[nodiscard]] QString request(bool bReplace) const;
    /// The first of its texts that request() would write and a settings string can't hold.
    struct Unkept {
        QString SearchForm::*text;
        bool needsSpecialChars; ///< the text can be written otherwise, but not with special characters off
        QString message;        ///< tells the user, with the other way to write it if there is one
    };
    [[nodiscard]] std::optional<Unkept> unkeptText(bool bReplace) const;

    /// Puts both texts in front of their lists. Nothing for an empty search text.
    void rememberTexts();

    /// The start and the end of a word go together with any match, but not with whole words only.
    void chooseAnchor(int index);
    void checkWholeWords(bool on);

    /// Something is on that only the larger layout shows.
    [[nodiscard]] bool isOnUnseen() const {
        return matchCase || (wholeWords && wholeWordsEnabled()) || (specialChars && specialCharsShown()) ||
               (anchor != anywhere && wildcardsShown());
    }

    [[nodiscard]] bool wholeWordsEnabled() const { return mode != SearchMode::RegularExpression; }
    [[nodiscard]] bool specialCharsShown() const { return mode != SearchMode::RegularExpression; }
    [[nodiscard]] bool wildcardsShown() const { return mode == SearchMode::Wildcard; }

    [[nodiscard]] bool up() const { return direction == SearchDirection::Up; }
    [[nodiscard]] bool down() const { return direction == SearchDirection::Down; }
    [[nodiscard]] bool fromStart() const { return direction == SearchDirection::FromStart; }
    [[nodiscard]] WildcardOptions wildcardOptions() const;
};

} // namespace tolvo
