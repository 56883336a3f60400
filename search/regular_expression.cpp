// SPDX-License-Identifier: MIT
#include "search/regular_expression.h"

#include "search/ecmascript_pattern.h"

#include "base/code_page.h"

#define PCRE2_CODE_UNIT_WIDTH 16
#include <pcre2.h>

#include <algorithm>
#include <array>

namespace tolvo {

namespace {

constexpr std::uint32_t matchLimit = 1'000'000;
constexpr std::uint32_t heapLimitKiB = 128 * 1024;
constexpr std::uint32_t deepestNesting = 1000;

PCRE2_SPTR16 units(QStringView text) {
    return reinterpret_cast<PCRE2_SPTR16>(text.isEmpty() ? u"" : text.utf16());
}

QString engineMessage(int code) {
    std::array<PCRE2_UCHAR16, 256> buffer{};
    pcre2_get_error_message_16(code, buffer.data(), buffer.size());
    return QString::fromUtf16(reinterpret_cast<const char16_t *>(buffer.data()));
}

bool isSizeError(int code) {
    return code == PCRE2_ERROR_PATTERN_TOO_LARGE || code == PCRE2_ERROR_PATTERN_TOO_COMPLICATED ||
           code == PCRE2_ERROR_PARENTHESES_NEST_TOO_DEEP || code == PCRE2_ERROR_PARENTHESES_STACK_CHECK ||
           code == PCRE2_ERROR_HEAP_FAILED || code == PCRE2_ERROR_PATTERN_STRING_TOO_LONG ||
           code == PCRE2_ERROR_LOOKBEHIND_TOO_COMPLICATED;
}

} // namespace

/// Each position may cost as much as the match limit allows, some milliseconds, or next to nothing; and each
/// step makes the engine look anew whether the rest of the text can match at all.
struct RegularExpression::Pace {
    qsizetype positions = 8;
    qsizetype nextLook = 0;

    void goOn(qsizetype from, MatchBudget::Clock::duration lastStretch) {
        if (lastStretch > std::chrono::milliseconds(50))
            positions = std::max<qsizetype>(positions / 2, 1);
        else if (lastStretch < std::chrono::milliseconds(10))
            positions = std::min<qsizetype>(positions * 2, 256);
        nextLook = from + positions;
    }
};

struct RegularExpression::Compiled {
    pcre2_code_16 *code = nullptr;
    bool startsAtLines = false;  ///< the engine only tries positions after a line end
    char16_t firstUnits[2] = {}; ///< what a match begins with, in both cases
    bool hasFirstUnit = false;

    Compiled() = default;
    Compiled(const Compiled &) = delete;
    Compiled &operator=(const Compiled &) = delete;
    ~Compiled() { pcre2_code_free_16(code); }

    void readStart(bool matchCase);
};

struct RegularExpression::MatchState::Memory {
    pcre2_match_data_16 *match = nullptr;
    pcre2_match_context_16 *context = nullptr;

    Memory() = default;
    Memory(const Memory &) = delete;
    Memory &operator=(const Memory &) = delete;
    ~Memory() {
        pcre2_match_context_free_16(context);
        pcre2_match_data_free_16(match);
    }
};

RegularExpression::MatchState::MatchState(const RegularExpression &expression)
    : m_memory(std::make_unique<Memory>()) {
    if (!expression.isValid())
        return;
    m_memory->match = pcre2_match_data_create_from_pattern_16(expression.m_compiled->code, nullptr);
    m_memory->context = pcre2_match_context_create_16(nullptr);
    if (m_memory->match == nullptr || m_memory->context == nullptr)
        throw std::bad_alloc();
    pcre2_set_match_limit_16(m_memory->context, matchLimit);
    pcre2_set_heap_limit_16(m_memory->context, heapLimitKiB);
}

RegularExpression::MatchState::~MatchState() = default;

/// What the engine says about how a match begins.
void RegularExpression::Compiled::readStart(bool matchCase) {
    std::uint32_t kind = 0;
    std::uint32_t unit = 0;
    pcre2_pattern_info_16(code, PCRE2_INFO_FIRSTCODETYPE, &kind);
    pcre2_pattern_info_16(code, PCRE2_INFO_FIRSTCODEUNIT, &unit);
    startsAtLines = kind == 2;
    // The engine may mean the unit without regard to case whatever the options: "The|the" begins with a "T"
    // of either case. Without regard to case k and s have a third form.
    const char16_t lower = toLower(static_cast<char16_t>(unit));
    hasFirstUnit = kind == 1 && unit < 0x80 && (matchCase || (lower != u'k' && lower != u's'));
    firstUnits[0] = lower;
    firstUnits[1] = toUpper(lower);
}

QStringView RegularExpressionMatch::group(int number) const {
    const std::size_t index = static_cast<std::size_t>(number) * 2;
    if (index + 1 >= m_bounds.size() || m_bounds[index] == PCRE2_UNSET)
        return {};
    return m_text.sliced(static_cast<qsizetype>(m_bounds[index]),
                         static_cast<qsizetype>(m_bounds[index + 1] - m_bounds[index]));
}

RegularExpression::RegularExpression(QStringView pattern, bool matchCase) {
    const TranslatedPattern translated = translateEcmaScript(pattern, matchCase);
    m_groups = translated.groups;
    if (translated.error.isEmpty()) {
        // What a look-ahead at the start begins with and what a match must hold, the engine adds up to
        // positions that it wrongly passes by: "(?=[Bb])B". Patterns with one do without its looking ahead
        // for a start. What is repeated no times is there for the engine's eyes: a pattern that names a line
        // end may begin to match between CR and LF.
        compile(QStringLiteral("(?:") + translated.pattern + QStringLiteral(")\\n{0}"),
                translated.lookAhead ? PCRE2_NO_START_OPTIMIZE : 0U, matchCase);
    } else {
        m_state = PatternState::Invalid;
        m_error = translated.error;
        m_errorAt = translated.errorAt;
    }
}

void RegularExpression::compile(const QString &pattern, std::uint32_t options, bool matchCase) {
    const std::unique_ptr<pcre2_compile_context_16, decltype(&pcre2_compile_context_free_16)> context(
        pcre2_compile_context_create_16(nullptr), pcre2_compile_context_free_16);
    if (context == nullptr)
        throw std::bad_alloc();
    pcre2_set_newline_16(context.get(), PCRE2_NEWLINE_ANYCRLF);
    pcre2_set_parens_nest_limit_16(context.get(), deepestNesting);
    options |= PCRE2_UCP | PCRE2_MATCH_UNSET_BACKREF | PCRE2_USE_OFFSET_LIMIT;
    if (!matchCase)
        options |= PCRE2_CASELESS;
    const auto compiled = std::make_shared<Compiled>();
    int code = 0;
    PCRE2_SIZE offset = 0;
    compiled->code = pcre2_compile_16(units(pattern), static_cast<PCRE2_SIZE>(pattern.size()), options, &code,
                                      &offset, context.get());
    if (compiled->code != nullptr) {
        compiled->readStart(matchCase);
        m_compiled = compiled;
        return;
    }
    m_state = isSizeError(code) ? PatternState::TooLarge : PatternState::Invalid;
    m_error = engineMessage(code);
}

/// The first position from `from` on where a match may begin: the engine looks for it itself, but would do so
/// anew at every step.
qsizetype RegularExpression::nextCandidate(QStringView text, qsizetype from) const {
    if (!m_compiled->hasFirstUnit)
        return from;
    const char16_t *const end = text.utf16() + text.size();
    const char16_t *const found = std::find_if(text.utf16() + from, end,
                                               [a = m_compiled->firstUnits[0], b = m_compiled->firstUnits[1]](
                                                   char16_t unit) { return unit == a || unit == b; });
    return found == end ? text.size() + 1 : found - text.utf16();
}

RegularExpression::Step RegularExpression::step(QStringView text, qsizetype from, MatchState::Memory &memory,
                                                Pace &pace, MatchBudget &budget) const {
    for (qsizetype start = nextCandidate(text, from); start <= text.size();) {
        if (start >= pace.nextLook) {
            if (budget.spent())
                return Step::LimitReached;
            pace.goOn(start, budget.lastStretch());
        }
        qsizetype last = std::min(text.size(), start + pace.positions - 1);
        if (m_compiled->startsAtLines) {
            // The engine would pass by the place between CR and LF; a step that begins there looks at it.
            const qsizetype lineEnd = text.first(std::min(last + 1, text.size())).indexOf(u"\r\n", start);
            last = lineEnd < 0 ? last : lineEnd;
        }
        pcre2_set_offset_limit_16(memory.context, static_cast<PCRE2_SIZE>(last));
        const int result = pcre2_match_16(m_compiled->code, units(text), static_cast<PCRE2_SIZE>(text.size()),
                                          static_cast<PCRE2_SIZE>(start), 0, memory.match, memory.context);
        if (result > 0)
            return Step::Found;
        if (result != PCRE2_ERROR_NOMATCH) {
            budget.end(QStringLiteral("The regular expression needs too much work on this text (%1)")
                           .arg(engineMessage(result)));
            return Step::LimitReached;
        }
        start = last >= text.size() ? last + 1 : nextCandidate(text, last + 1);
    }
    return Step::NoMatch;
}

RegularExpression::Outcome RegularExpression::forEachMatch(QStringView text, MatchBudget &budget,
                                                           const Visitor &visit) const {
    MatchState state(*this);
    return forEachMatch(text, state, budget, visit);
}

RegularExpression::Outcome RegularExpression::forEachMatch(QStringView text, MatchState &state,
                                                           MatchBudget &budget, const Visitor &visit) const {
    if (!isValid())
        return Outcome::Completed;
    MatchState::Memory &memory = *state.m_memory;
    Pace pace;
    for (qsizetype from = 0; from <= text.size();) {
        const Step result = step(text, from, memory, pace, budget);
        if (result != Step::Found)
            return result == Step::NoMatch ? Outcome::Completed : Outcome::LimitReached;
        const RegularExpressionMatch match(text, {pcre2_get_ovector_pointer_16(memory.match),
                                                  std::size_t{2} * pcre2_get_ovector_count_16(memory.match)});
        from = match.start() + match.length() + (match.length() == 0 ? 1 : 0);
        if (!visit(match))
            return Outcome::Completed;
    }
    return Outcome::Completed;
}

std::optional<RegularExpression::Span> RegularExpression::firstMatch(QStringView text) const {
    MatchBudget budget;
    std::optional<Span> first;
    forEachMatch(text, budget, [&](const RegularExpressionMatch &match) {
        first = Span{match.start(), match.length()};
        return false;
    });
    return first;
}

} // namespace tolvo
