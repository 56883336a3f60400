// SPDX-License-Identifier: MIT
// Find and replace in the text box in use: literal text, wildcards, regular expressions. The class keeps no
// state between calls; where the last search ended is the selection of the text box.
#pragma once

#include "platform/message_box.h"
#include "search/expression_search.h"
#include "search/match_copy.h"
#include "search/search_host.h"
#include "search/search_request.h"
#include "text/cTextMethods.h"

#include <QString>
#include <QStringView>
#include <functional>

namespace tolvo {

enum class SearchedBy {
    Window,     ///< the first press of Replace only selects, and Replace All says how many
    PowerButton ///< one step finds and replaces, in silence
};

class CSearch {
  public:
    CSearch(SearchHost &host, MessageBoxes &boxes, const cTextMethods &textMethods);

    /// How long one command may look for matches of an expression; then it is given up with failure 5020.
    void setTimeLimit(MatchBudget::Clock::duration limit) { m_timeLimit = limit; }

    /// Carries out a request in its mode. From the window each replacement is an undo step of its own, and a
    /// Find All shows its list. Nothing for an empty search text.
    void run(SearchVerb verb, const SearchRequest &request, SearchedBy by = SearchedBy::Window);

    /// All matches as a text of their own, without a word where there is none. Nothing for an empty search
    /// text and after an error, which has been shown.
    [[nodiscard]] std::optional<CopiedMatches> copyMatches(const MatchCopy &copy);

    /// The regular expression for a wildcard pattern, as shown to the user; empty after an error, which has
    /// been shown.
    [[nodiscard]] QString translateWildcardsToRegExp(const QString &pattern, bool specialChars,
                                                     const WildcardOptions &options);
    /// The text that its escapes stand for (escaped_text.h), which also stands in `text`. An escape without
    /// hexadecimal digits is reported and empties the text.
    QString translateSpecialChars(QString &text, bool crlf);

    // What lives for a fixed name alone (search_operations.cpp): the program itself calls run(). Each makes a
    // request of its arguments and carries it out.

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

    // The same by wildcards. The number of results for Find All, which fills the list but shows nothing.
    void WildcardSearch(const QString &find, bool specialChars, bool up, bool fromStart, bool matchCase,
                        const WildcardOptions &options);
    int WildcardFindAll(const QString &find, bool specialChars, bool matchCase,
                        const WildcardOptions &options);
    void WildcardReplace(const QString &find, const QString &replace, bool specialChars, bool up,
                         bool fromStart, bool matchCase, bool smartReplace, const WildcardOptions &options,
                         bool replaceAfterFind);
    void WildcardReplaceAll(const QString &find, const QString &replace, bool specialChars, bool matchCase,
                            bool smartReplace, const WildcardOptions &options, bool silent);

    // The same by regular expression.

    /// Selects a match. `text` is that of the text box, and "\n" in the pattern (backslash, n) is its CR LF.
    void RegExpSearch(const QString &text, QString pattern, bool up, bool fromStart, bool matchCase);
    /// The number of results; fills the list but shows nothing. Lines end in LF in what it searches, and
    /// `text` comes back so.
    int RegExpFindAll(QString &text, const QString &pattern, bool matchCase);
    void RegExpReplace(const QString &pattern, QString replace, bool up, bool fromStart, bool matchCase,
                       bool smartReplace, bool replaceAfterFind);
    void RegExpReplaceAll(const QString &pattern, QString replace, bool matchCase, bool smartReplace,
                          bool silent);

    /// One kind of escape: see withHexEscapes() in escaped_text.h. The result also stands in `text`.
    QString replaceHex(QString &text, QStringView prefix, int digits);

  private:
    enum class Found { Yes, No, NotSearched };

    void findAll(const SearchRequest &request);
    void replaceOne(const SearchRequest &request, bool replaceAfterFind);
    void replaceAll(const SearchRequest &request, bool silent);

    // Literal text (simple_search.cpp)
    Found findLiteral(SearchRequest request);
    void listLiterals(SearchRequest request);
    void replaceLiteral(SearchRequest request, bool replaceAfterFind);
    void replaceLiterals(SearchRequest request, bool silent);
    [[nodiscard]] LiteralPattern literalOf(const SearchRequest &request) const;

    // Wildcards and regular expressions (regexp_search.cpp)
    void findExpression(const QString &text, const SearchRequest &request);
    /// The number of results; `text` comes back with LF as its line end.
    int listExpressions(QString &text, const SearchRequest &request);
    void replaceExpression(const SearchRequest &request, bool replaceAfterFind);
    void replaceExpressions(const SearchRequest &request, bool silent);
    /// Calls `action` with the regular expression of the request, if it looks for anything; translating
    /// wildcards belongs to an operation of its own name.
    void withExpression(const SearchRequest &request, const char *wildcardOperation,
                        const std::function<void(const QString &)> &action);
    /// Translates wildcards, and says so if a bracket is missing.
    [[nodiscard]] WildcardTranslation translated(const SearchRequest &request);
    [[nodiscard]] MatchBudget newBudget();
    /// Selects the next match of a valid pattern, or says that there is none.
    void selectMatch(const RegularExpression &expression, const QString &text, const SearchRequest &request,
                     MatchBudget &budget);
    int listMatches(const RegularExpression &expression, const QString &text);

    /// Runs an operation; a failure is reported under its name, a bad escape with a hint. False after a
    /// failure.
    bool guarded(const char *operation, const std::function<void()> &action);
    /// The same without the hint.
    bool reported(const char *operation, const std::function<void()> &action);
    void tellReplacements(int count);
    void inform(const QString &text);

    SearchHost &m_host;
    MessageBoxes &m_boxes;
    const cTextMethods &m_text;
    MatchBudget::Clock::duration m_timeLimit = MatchBudget::usualTime;
};

} // namespace tolvo
