// SPDX-License-Identifier: MIT
#include "search/CSearch.h"

#include "search/joined.h"
#include "search/literal_pattern.h"
#include "search/result_lines.h"

#include <optional>

namespace tolvo {

LiteralPattern CSearch::literalOf(const SearchRequest &request) const {
    return {request.find, request.matchCase, request.wholeWords, m_text};
}

CSearch::Found CSearch::findLiteral(SearchRequest request) {
    Found found = Found::NotSearched;
    if (request.find.isEmpty())
        return found;
    guarded("SimpleSearch", [&] {
        if (request.specialChars)
            translateSpecialChars(request.find, true);
        TextBox &box = m_host.txtCurrent();
        const QString text = box.Text();
        const bool fromStart = request.direction == SearchDirection::FromStart;
        const bool up = request.direction == SearchDirection::Up;
        // Upwards a start from 0 is compared with positions from 1: a hit just before the caret is not seen.
        const qsizetype end = up ? box.SelStart() - 1 : text.size();
        const qsizetype from = up || fromStart ? 0 : box.SelStart() + (box.SelLength() > 0 ? 1 : 0);
        std::optional<qsizetype> hit;
        if (request.direction) {
            literalOf(request).forEachMatch(text, from, [&](qsizetype index) {
                if (index < end)
                    hit = index;
                return up && index < end;
            });
        }
        if (hit) {
            found = Found::Yes;
            tolvo::select(box, static_cast<int>(*hit), static_cast<int>(request.find.size()));
            if (fromStart)
                m_host.directionChanged(SearchDirection::Down);
        } else {
            found = Found::No;
            inform(QStringLiteral("Text not found"));
        }
    });
    return found;
}

void CSearch::listLiterals(SearchRequest request) {
    if (request.find.isEmpty())
        return;
    guarded("SimpleFindAll", [&] {
        if (request.specialChars)
            translateSpecialChars(request.find, true);
        const QString text = m_host.txtCurrent().Text();
        SearchResults &results = m_host.results();
        results.clear();
        LineCounter lines(text, u"\r\n");
        int count = 0;
        const qsizetype length = request.find.size();
        literalOf(request).forEachMatch(text, 0, [&](qsizetype index) {
            const qint32 location = packLocation(index, length);
            results.add(hitLine(lines.lineOf(index), text, index, index + 1, length), location);
            ++count;
            return true;
        });
        results.setCaption(resultsCaption(count, request.find));
        results.show();
    });
}

void CSearch::replaceLiteral(SearchRequest request, bool replaceAfterFind) {
    if (request.find.isEmpty())
        return;
    guarded("SimpleReplace", [&] {
        if (request.specialChars) {
            translateSpecialChars(request.replace, true);
            translateSpecialChars(request.find, true);
        }
        TextBox &box = m_host.txtCurrent();
        int selStart = box.SelStart();
        if (request.find.isEmpty() || !literalOf(request).equals(box.SelText())) {
            // The search translates its escapes once more: "\\\\n" is found as a line end on this way.
            if (findLiteral(request) != Found::Yes || !replaceAfterFind)
                return;
            selStart = box.SelStart();
        }
        const QString replacement =
            request.smartReplace ? m_text.smartMatch(box.SelText(), request.replace) : request.replace;
        box.setSelText(replacement);
        tolvo::select(box, selStart, static_cast<int>(replacement.size()));
    });
}

void CSearch::replaceLiterals(SearchRequest request, bool silent) {
    if (request.find.isEmpty())
        return;
    guarded("SimpleReplaceAll", [&] {
        if (request.specialChars) {
            translateSpecialChars(request.replace, true);
            translateSpecialChars(request.find, true);
        }
        TextBox &box = m_host.txtCurrent();
        const ReplacedText replaced =
            literalOf(request).replaceAll(box.Text(), request.replace, request.smartReplace, box.capacity());
        if (replaced.count > 0)
            box.setText(replaced.text);
        if (!silent)
            tellReplacements(replaced.count);
    });
}

} // namespace tolvo
