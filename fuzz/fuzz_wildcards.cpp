// SPDX-License-Identifier: MIT
// Wildcard patterns: whatever is typed, what is shown and what is compiled are patterns of the same standing
// and have the same groups.
#include "fuzz/fuzz.h"
#include "search/ecmascript_pattern.h"
#include "search/wildcard_translation.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    using namespace tolvo;
    if (size < 2 || size > 200)
        return 0;
    const QString pattern = fuzz::textOf(data + 2, size - 2);
    const WildcardOptions options{.wholeWords = (data[0] & 1) != 0,
                                  .anchor = static_cast<Anchor>((data[0] >> 1 & 7) % 5),
                                  .decimalSep = QString(QChar(data[1])),
                                  .groupingSep = (data[0] & 0x80) != 0 ? QString() : QStringLiteral("space")};
    const WildcardTranslation translation = translateWildcards(pattern, (data[0] & 0x40) != 0, options);
    fuzz::require(!translation.bracketMissing || translation.shown.isEmpty());
    const TranslatedPattern shown = translateEcmaScript(translation.shown, true);
    const TranslatedPattern compiled = translateEcmaScript(translation.compiled, true);
    fuzz::require(shown.groups == compiled.groups);
    // A separator that means something in an expression may be out of place in the one and not in the other.
    fuzz::require(shown.error.isEmpty() == compiled.error.isEmpty() || pattern.contains(u'#'));
    return 0;
}
