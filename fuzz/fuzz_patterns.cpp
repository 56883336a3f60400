// SPDX-License-Identifier: MIT
// Regular expressions: what the translation lets through the engine accepts or finds too large, and every
// match lies in the text, after the one before it.
#include "fuzz/fuzz.h"
#include "search/ecmascript_pattern.h"
#include "search/regular_expression.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    using namespace tolvo;
    if (size < 1 || size > 300)
        return 0;
    const bool matchCase = (data[0] & 1) != 0;
    const QString pattern = fuzz::textOf(data + 1, size - 1);
    const RegularExpression expression(pattern, matchCase);
    // Only the order of the counts in "{3,2}" is left to the engine.
    fuzz::require(expression.state() != PatternState::Invalid || pattern.contains(u'{') ||
                  !translateEcmaScript(pattern, matchCase).error.isEmpty());
    const QString text = pattern + QStringLiteral("\r\nabc 123_\u00E9\n") + pattern;
    MatchBudget budget({}, std::chrono::milliseconds(200));
    qsizetype last = -1;
    expression.forEachMatch(text, budget, [&](const RegularExpressionMatch &match) {
        fuzz::require(match.start() > last - 1 && match.start() + match.length() <= text.size());
        for (int i = 0; i <= expression.groups(); ++i)
            fuzz::require(match.group(i).size() <= text.size());
        last = match.start() + match.length();
        return true;
    });
    return 0;
}
