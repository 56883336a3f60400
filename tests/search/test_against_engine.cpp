// SPDX-License-Identifier: MIT
// Our walk through the matches beside the engine's bare matcher, tried at every position of the text with all
// its shortcuts off. The patterns are rich in what shortcuts are made from: letters in two cases, what a
// match may begin with, line starts. TOLVO_PATTERN_PAIRS sets how many pairs of pattern and text are
// compared, and TOLVO_PATTERN_SEED where the generator begins.
#include "search/ecmascript_pattern.h"
#include "search/regular_expression.h"
#include "tests/search/pattern_generator.h"
#include "tests/support/print.h"

#include <gtest/gtest.h>
#include <memory>
#include <optional>

#define PCRE2_CODE_UNIT_WIDTH 16
#include <pcre2.h>

namespace tolvo::test {

namespace {

using Bounds = std::vector<std::size_t>;

PatternWords words() {
    return {.letters = QStringLiteral("aAbBkKsScC."),
            .atoms = {"[Cc]",        "[cC]",    "[Kk]",     "[sS]",      "[\u00c9\u00e9]",
                      "(?:A|a)",     "(B|b)",   "(?:k|K)",  "(?:AB|ab)", "(S|s)a",
                      "(?:Bab)?bab", "(?:C)?c", "(?:K)?k",  "(?=A|a)",   "(?!A)",
                      "(?=[Bb])",    "(?:^|a)", "(?:^A|a)", ".*",        ".*?",
                      "\\n",         "\\r\\n",  "\\s",      "\\w",       "\u00e9",
                      "\u00c9",      "\u212a",  "\u017f",   "\u00df",    "\u0416"},
            .members = {"a", "A", "b", "B", "k", "K", "s", "S", "c", "C", "\u00e9", "\u00c9", "\u017f", "\\n",
                        "a-c"},
            .textUnits =
                QStringLiteral("aAbBkKsScCaAbBkKsScC\u00e9\u00c9\u212a\u017f\u00df\u0416\u0436\u2028")};
}

/// The engine with nothing of ours around it but the translation of the pattern.
class BareEngine {
  public:
    BareEngine(const QString &pattern, bool matchCase) {
        const QString translated = "(?:" + translateEcmaScript(pattern, matchCase).pattern + ")\\n{0}";
        pcre2_compile_context_16 *context = pcre2_compile_context_create_16(nullptr);
        pcre2_set_newline_16(context, PCRE2_NEWLINE_ANYCRLF);
        int error = 0;
        PCRE2_SIZE offset = 0;
        m_code.reset(pcre2_compile_16(units(translated), static_cast<PCRE2_SIZE>(translated.size()),
                                      PCRE2_UCP | PCRE2_MATCH_UNSET_BACKREF | PCRE2_NO_START_OPTIMIZE |
                                          PCRE2_NO_AUTO_POSSESS | PCRE2_NO_DOTSTAR_ANCHOR |
                                          (matchCase ? 0U : static_cast<std::uint32_t>(PCRE2_CASELESS)),
                                      &error, &offset, context));
        pcre2_compile_context_free_16(context);
        m_match.reset(pcre2_match_data_create_from_pattern_16(m_code.get(), nullptr));
    }

    /// Where matches and their groups begin and end. Nothing if the engine gives up.
    [[nodiscard]] std::optional<std::vector<Bounds>> matches(const QString &text) const {
        std::vector<Bounds> found;
        for (qsizetype at = 0; at <= text.size(); ++at) {
            const int result =
                pcre2_match_16(m_code.get(), units(text), static_cast<PCRE2_SIZE>(text.size()),
                               static_cast<PCRE2_SIZE>(at), PCRE2_ANCHORED, m_match.get(), nullptr);
            if (result == PCRE2_ERROR_NOMATCH)
                continue;
            if (result < 0)
                return std::nullopt;
            const PCRE2_SIZE *const bounds = pcre2_get_ovector_pointer_16(m_match.get());
            found.emplace_back(bounds, bounds + std::size_t{2} * pcre2_get_ovector_count_16(m_match.get()));
            at = std::max(at, static_cast<qsizetype>(bounds[1]) - 1);
        }
        return found;
    }

  private:
    static PCRE2_SPTR16 units(const QString &text) { return reinterpret_cast<PCRE2_SPTR16>(text.utf16()); }
    struct Free {
        void operator()(pcre2_code_16 *code) const { pcre2_code_free_16(code); }
        void operator()(pcre2_match_data_16 *data) const { pcre2_match_data_free_16(data); }
    };
    std::unique_ptr<pcre2_code_16, Free> m_code;
    std::unique_ptr<pcre2_match_data_16, Free> m_match;
};

std::optional<std::vector<Bounds>> ourMatches(const RegularExpression &expression, const QString &text) {
    std::vector<Bounds> found;
    MatchBudget budget;
    const auto outcome = expression.forEachMatch(text, budget, [&](const RegularExpressionMatch &match) {
        Bounds bounds;
        for (int i = 0; i <= expression.groups(); ++i) {
            const QStringView group = match.group(i);
            const std::size_t start = group.isNull() ? PCRE2_UNSET : group.data() - QStringView(text).data();
            bounds.insert(bounds.end(), {start, group.isNull() ? PCRE2_UNSET : start + group.size()});
        }
        found.push_back(bounds);
        return true;
    });
    return outcome == RegularExpression::Outcome::Completed ? std::optional(found) : std::nullopt;
}

int numberFrom(const char *variable, int otherwise) {
    const int number = qEnvironmentVariableIntValue(variable);
    return number > 0 ? number : otherwise;
}

struct Tally {
    int compared = 0;
    int withMatches = 0;
    int givenUp = 0;
};

void compare(const QString &pattern, bool matchCase, const QStringList &texts, Tally &tally) {
    const RegularExpression expression(pattern, matchCase);
    if (!expression.isValid())
        return;
    const BareEngine engine(pattern, matchCase);
    for (const QString &text : texts) {
        const auto expected = engine.matches(text);
        const auto found = ourMatches(expression, text);
        if (!expected || !found) {
            ++tally.givenUp;
            continue;
        }
        ++tally.compared;
        tally.withMatches += expected->empty() ? 0 : 1;
        EXPECT_EQ(found, expected) << pattern.toStdString() << (matchCase ? " (match case) in " : " in ")
                                   << shown(text);
    }
}

TEST(AgainstEngine, ShortcutsChangeNoMatch) {
    Tally known;
    for (const char *pattern :
         {"The|the", "(C|c)at", "[Cc]at", "(?:Bab)?bab", "(?=[Bb])(?:B|k)", "(?=(?:A|a){0})"})
        compare(pattern, true, {"in the end The end", "a cat Cat", "bab Babbab", "kB"}, known);
    EXPECT_EQ(known.withMatches, 10);

    PatternGenerator generator(words(), static_cast<unsigned>(numberFrom("TOLVO_PATTERN_SEED", 20261123)));
    const int pairs = numberFrom("TOLVO_PATTERN_PAIRS", 20'000);
    Tally random;
    while (random.compared < pairs && !HasFailure()) {
        const QString pattern = generator.pattern();
        const QString text = generator.text();
        compare(pattern, !generator.oneIn(3),
                {text, generator.text(), text.repeated(generator.oneIn(9) ? 20 : 2)}, random);
    }
    // The ground is worth something only if it is not all misses and patterns that ask too much.
    EXPECT_GT(random.withMatches, pairs / 4);
    EXPECT_LT(random.givenUp, pairs / 200 + 1);
}

} // namespace

} // namespace tolvo::test
