// SPDX-License-Identifier: MIT
#include "search/match_copy.h"

#include "base/CParams.h"
#include "base/escaped_text.h"
#include "platform/line_ends.h"
#include "preferences/settings_keys.h"
#include "search/expression_search.h"
#include "search/literal_pattern.h"
#include "search/replacement_template.h"

#include <array>

namespace tolvo {

namespace {

const QString formKey = QStringLiteral("Form");
const QString inPlaceKey = QStringLiteral("InPlace");

/// One line for each match that it is shown.
class Copier {
  public:
    Copier(const QString &form, int groups) : m_form(form.isEmpty() ? QStringLiteral("$&") : form, groups) {}

    void operator()(const RegularExpressionMatch &match) {
        if (m_copied.count++ > 0)
            m_copied.text += u'\n';
        m_form.expand(match, m_copied.text);
    }
    [[nodiscard]] CopiedMatches take() {
        m_copied.text = lfToCrLf(crLfToLf(m_copied.text));
        return std::move(m_copied);
    }

  private:
    ReplacementTemplate m_form;
    CopiedMatches m_copied;
};

CopiedMatches copyOfLiterals(const QString &text, const MatchCopy &copy, const QString &form,
                             const cTextMethods &engine) {
    const SearchRequest &search = copy.search;
    const QString find = search.specialChars ? unescaped(search.find, true) : search.find;
    Copier copier(form, 0);
    const LiteralPattern pattern(find, search.matchCase, search.wholeWords, engine);
    pattern.forEachMatch(text, 0, [&](qsizetype index) {
        const std::array bounds{static_cast<std::size_t>(index),
                                static_cast<std::size_t>(index + find.size())};
        copier(RegularExpressionMatch(text, bounds));
        return true;
    });
    return copier.take();
}

} // namespace

void MatchCopy::load(const SettingsStore &store) {
    search.load(store);
    form = get(store, settingKeys.matchCopy.form);
    inPlace = get(store, settingKeys.matchCopy.inPlace);
}

MatchCopy readMatchCopy(const CParams &params, const RequestReading &reading) {
    return {.search = readRequest(params, false, reading),
            .form = params.arg(formKey),
            .inPlace = forms::Check::read(params.arg(inPlaceKey))};
}

QString settingsString(const MatchCopy &copy) {
    return QStringLiteral("%1, %2=%3, %4=%5")
        .arg(settingsString(copy.search, false), formKey, copy.form, inPlaceKey,
             forms::Check::written(copy.inPlace));
}

CopiedMatches copyOfMatches(const QString &text, const MatchCopy &copy, const RegularExpression *expression,
                            const cTextMethods &engine, MatchBudget &budget) {
    const bool escapes = expression != nullptr || copy.search.specialChars;
    const QString form = escapes ? unescaped(copy.form, false) : copy.form;
    if (expression == nullptr)
        return copyOfLiterals(text, copy, form, engine);
    Copier copier(form, expression->groups());
    walkMatches(*expression, crLfToLf(text), budget, [&](const RegularExpressionMatch &match) {
        if (match.length() > 0)
            copier(match);
        return true;
    });
    return copier.take();
}

} // namespace tolvo
