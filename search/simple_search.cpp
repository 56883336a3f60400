// SPDX-License-Identifier: MIT
#include "search/CSearch.h"

#include "base/code_page.h"
#include "search/joined.h"
#include "search/literal_matcher.h"
#include "search/result_lines.h"

#include <algorithm>
#include <optional>

namespace tolvo {

/// A side of `find` that is no letter is not tested. `position` counts from 1.
bool CSearch::standsAsWord(QStringView text, qsizetype position, QStringView find) const {
    return (!IsAlpha(find.first(1)) || m_text.atStartOfWord(text, position)) &&
           (!IsAlpha(find.last(1)) || m_text.atEndOfWord(text, position + find.size()));
}

bool CSearch::SimpleSearch(QString find, bool specialChars, bool up, bool down, bool &fromStart,
                           bool matchCase, bool wholeWords) {
    if (find.isEmpty())
        return false;
    bool found = false;
    guarded("SimpleSearch", [&] {
        if (specialChars)
            translateSpecialChars(find, true);
        TextBox &box = m_host.txtCurrent();
        const QString text = box.Text();
        const bool searchDown = down || fromStart;
        // Upwards a start from 0 is compared with positions from 1: a hit just before the caret is not seen.
        const qsizetype behind = box.SelStart() - 1;
        const qsizetype from = fromStart ? 0 : box.SelStart() + (box.SelLength() > 0 ? 1 : 0);
        std::optional<qsizetype> hit;
        const auto visit = [&](qsizetype index) {
            if (!searchDown && index >= behind)
                return false;
            if (!wholeWords || standsAsWord(text, index + 1, find))
                hit = index;
            return !searchDown || !hit;
        };
        if (searchDown || up)
            LiteralMatcher(find, matchCase).forEachOccurrence(text, searchDown ? from : 0, visit);
        if (hit) {
            found = true;
            tolvo::select(box, static_cast<int>(*hit), static_cast<int>(find.size()));
            if (fromStart)
                m_host.directionChanged(SearchDirection::Down);
        } else {
            inform(QStringLiteral("Text not found"));
            fromStart = true;
        }
    });
    return found;
}

void CSearch::SimpleFindAll(QString find, bool specialChars, bool matchCase, bool wholeWords) {
    if (find.isEmpty())
        return;
    guarded("SimpleFindAll", [&] {
        if (specialChars)
            translateSpecialChars(find, true);
        listSimpleHits(find, matchCase, wholeWords);
    });
}

void CSearch::listSimpleHits(const QString &find, bool matchCase, bool wholeWords) {
    const QString text = m_host.txtCurrent().Text();
    SearchResults &results = m_host.results();
    results.clear();
    LineCounter lines(text, u"\r\n");
    int count = 0;
    LiteralMatcher(find, matchCase).forEachOccurrence(text, 0, [&](qsizetype index) {
        if (wholeWords && !standsAsWord(text, index + 1, find))
            return true;
        const qint32 location = packLocation(index, find.size());
        results.add(joined({u"Line ", QString::number(lines.lineOf(index)), u": ",
                            hitContext(text, index + 1, find.size())}),
                    location);
        ++count;
        return true;
    });
    results.setCaption(resultsCaption(count, find));
    results.show();
}

void CSearch::SimpleReplace(QString find, QString replace, bool specialChars, bool up, bool down,
                            bool fromStart, bool matchCase, bool wholeWords, bool smartReplace,
                            bool replaceAfterFind) {
    if (find.isEmpty())
        return;
    guarded("SimpleReplace", [&] {
        if (specialChars) {
            translateSpecialChars(replace, true);
            translateSpecialChars(find, true);
        }
        TextBox &box = m_host.txtCurrent();
        int selStart = box.SelStart();
        if (find.isEmpty() || !LiteralMatcher(find, matchCase).equals(box.SelText())) {
            // The search translates its escapes once more: "\\\\n" is found as a line end on this way.
            if (!SimpleSearch(find, specialChars, up, down, fromStart, matchCase, wholeWords) ||
                !replaceAfterFind)
                return;
            selStart = box.SelStart();
        }
        if (smartReplace)
            replace = m_text.smartMatch(box.SelText(), replace);
        box.setSelText(replace);
        tolvo::select(box, selStart, static_cast<int>(replace.size()));
    });
}

void CSearch::SimpleReplaceAll(QString find, QString replace, bool specialChars, bool matchCase,
                               bool wholeWords, bool smartReplace, bool silent) {
    if (find.isEmpty())
        return;
    guarded("SimpleReplaceAll", [&] {
        if (specialChars) {
            translateSpecialChars(replace, true);
            translateSpecialChars(find, true);
        }
        QString text = m_host.txtCurrent().Text();
        const int count = replaceEach(text, find, replace, matchCase, wholeWords, smartReplace);
        if (count > 0)
            m_host.txtCurrent().setText(text);
        if (!silent)
            tellReplacements(count);
    });
}

/// The outcome is that of a text box written after every single replacement: what no longer has room in it is
/// cut off at once and not searched any more.
int CSearch::replaceEach(QString &text, QStringView find, const QString &replace, bool matchCase,
                         bool wholeWords, bool smartReplace) const {
    const qsizetype capacity = m_host.txtCurrent().capacity();
    QStringView rest(text);
    QString result;
    qsizetype done = 0;
    int count = 0;
    LiteralMatcher(find, matchCase).forEachOccurrence(text, 0, [&](qsizetype index) {
        if (index < done)
            return true;
        if (index + find.size() > rest.size())
            return false;
        // The character before the hit is the one that stands there by now.
        const bool startsWord = index > done ? m_text.atStartOfWord(rest, index + 1)
                                             : m_text.atStartOfWord(result, result.size() + 1);
        if (wholeWords && ((IsAlpha(find.first(1)) && !startsWord) ||
                           (IsAlpha(find.last(1)) && !m_text.atEndOfWord(rest, index + 1 + find.size()))))
            return true;
        result += rest.sliced(done, index - done);
        result += smartReplace ? m_text.smartMatch(rest.sliced(index, find.size()), replace) : replace;
        done = index + find.size();
        ++count;
        const qsizetype room = std::max<qsizetype>(0, capacity - result.size());
        rest = rest.first(std::min(rest.size(), done + room));
        return true;
    });
    result += rest.sliced(done);
    result += QStringView(text).sliced(rest.size()); // unsearched: the text box cuts it off again, and tells
    text = result;
    return count;
}

} // namespace tolvo
