// SPDX-License-Identifier: MIT
// Find and replace in three modes: literal text, wildcards, regular expressions. The class keeps no state
// between calls; where the last search ended is the selection of the text box.
#pragma once

#include "platform/message_box.h"
#include "search/search_host.h"
#include "text/cTextMethods.h"

#include <QString>

namespace tolvo {

struct WildcardOptions {
    bool wholeWords = false;
    int anchor = 4; ///< 0 start of word, 1 end of word, 2 start of line, 3 end of line, else anywhere
    QString decimalSep = QStringLiteral(".");
    QString groupingSep = QStringLiteral(",");
};

class CSearch {
  public:
    CSearch(SearchHost &host, MessageBoxes &boxes, const cTextMethods &textMethods);

    // Literal text (simple_search.cpp)

    /// True if a match is now selected. `fromStart` is set on a failed search.
    bool SimpleSearch(QString find, bool specialChars, bool up, bool down, bool &fromStart, bool matchCase,
                      bool wholeWords);
    void SimpleFindAll(QString find, bool specialChars, bool matchCase, bool wholeWords);
    /// `replaceAfterFind`: false from the window's button, which first only selects; true from a PowerButton.
    void SimpleReplace(QString find, QString replace, bool specialChars, bool up, bool down, bool fromStart,
                       bool matchCase, bool wholeWords, bool smartReplace, bool replaceAfterFind);
    /// `silent`: no count is shown.
    void SimpleReplaceAll(QString find, QString replace, bool specialChars, bool matchCase, bool wholeWords,
                          bool smartReplace, bool silent);

    // Wildcards (wildcard_search.cpp)

    void WildcardSearch(const QString &find, bool specialChars, bool up, bool fromStart, bool matchCase,
                        const WildcardOptions &options);
    int WildcardFindAll(const QString &find, bool specialChars, bool matchCase,
                        const WildcardOptions &options);
    void WildcardReplace(const QString &find, const QString &replace, bool specialChars, bool up,
                         bool fromStart, bool matchCase, bool smartReplace, const WildcardOptions &options,
                         bool replaceAfterFind);
    void WildcardReplaceAll(const QString &find, const QString &replace, bool specialChars, bool matchCase,
                            bool smartReplace, const WildcardOptions &options, bool silent);
    /// The regular expression for a wildcard pattern, as shown to the user; empty after an error, which has
    /// been shown.
    [[nodiscard]] QString translateWildcardsToRegExp(const QString &pattern, bool specialChars,
                                                     const WildcardOptions &options);

    // Regular expressions (regexp_search.cpp)

    void RegExpSearch(const QString &text, QString pattern, bool up, bool fromStart, bool matchCase);
    /// The number of results; fills the list but shows nothing.
    int RegExpFindAll(QString &text, const QString &pattern, bool matchCase);
    void RegExpReplace(const QString &pattern, QString replace, bool up, bool fromStart, bool matchCase,
                       bool smartReplace, bool replaceAfterFind);
    void RegExpReplaceAll(const QString &pattern, QString replace, bool matchCase, bool smartReplace,
                          bool silent);

    // Escapes (special_chars.cpp)

    QString translateSpecialChars(QString &text, bool crlf);

  private:
    SearchHost &m_host;
    MessageBoxes &m_boxes;
    const cTextMethods &m_text;
};

} // namespace tolvo
