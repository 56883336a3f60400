// SPDX-License-Identifier: MIT
// Find and replace in three modes: literal text, wildcards, regular expressions. The class keeps no state
// between calls; where the last search ended is the selection of the text box.
#pragma once

#include "platform/message_box.h"
#include "search/regular_expression.h"
#include "search/search_host.h"
#include "search/wildcard_translation.h"
#include "text/cTextMethods.h"

#include <QString>
#include <QStringView>
#include <functional>

namespace tolvo {

class CSearch {
  public:
    CSearch(SearchHost &host, MessageBoxes &boxes, const cTextMethods &textMethods);

    /// How long one command may look for matches of an expression; then it is given up with failure 5020.
    void setTimeLimit(MatchBudget::Clock::duration limit) { m_timeLimit = limit; }

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

    /// Selects a match. `text` is that of the text box, and "\n" in the pattern (backslash, n) is its CR LF.
    void RegExpSearch(const QString &text, QString pattern, bool up, bool fromStart, bool matchCase);
    /// The number of results; fills the list but shows nothing. Lines end in LF in what it searches, and
    /// `text` comes back so.
    int RegExpFindAll(QString &text, const QString &pattern, bool matchCase);
    void RegExpReplace(const QString &pattern, QString replace, bool up, bool fromStart, bool matchCase,
                       bool smartReplace, bool replaceAfterFind);
    void RegExpReplaceAll(const QString &pattern, QString replace, bool matchCase, bool smartReplace,
                          bool silent);

    // Escapes (special_chars.cpp)

    /// "\n" (as CR LF or as LF), "\t", "\xHH", "\uHHHH" and "\\"; the result also stands in `text`. An escape
    /// without hexadecimal digits is reported and empties the text.
    QString translateSpecialChars(QString &text, bool crlf);
    QString replaceHex(QString &text, QStringView prefix, int digits);

  private:
    /// Runs an operation; a failure is told under its name, a bad escape with a hint. False after a failure.
    bool guarded(const char *operation, const std::function<void()> &action);
    /// The same without the hint.
    bool reported(const char *operation, const std::function<void()> &action);
    /// Translates a pattern, and says so if a bracket is missing in it.
    [[nodiscard]] WildcardTranslation translated(const QString &pattern, bool specialChars,
                                                 const WildcardOptions &options);
    /// The whole-word rule for a match at a position from 1.
    [[nodiscard]] bool standsAsWord(QStringView text, qsizetype position, QStringView find) const;
    void listSimpleHits(const QString &find, bool matchCase, bool wholeWords);
    /// One replacement after another, in a copy; the number of them.
    int replaceEach(QString &text, QStringView find, const QString &replace, bool matchCase, bool wholeWords,
                    bool smartReplace) const;
    void tellReplacements(int count);
    void inform(const QString &text);

    [[nodiscard]] MatchBudget newBudget();
    /// Selects the next match of a valid pattern, or says that there is none.
    void selectMatch(const RegularExpression &expression, const QString &text, bool up, bool fromStart,
                     MatchBudget &budget);
    int listMatches(const RegularExpression &expression, const QString &text);
    /// Each match replaced by itself, out of its context; the number of them.
    int replaceMatchByMatch(const RegularExpression &expression, QString &text, const QString &replace,
                            bool smartReplace);

    SearchHost &m_host;
    MessageBoxes &m_boxes;
    const cTextMethods &m_text;
    MatchBudget::Clock::duration m_timeLimit = MatchBudget::usualTime;
};

} // namespace tolvo
