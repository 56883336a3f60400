// SPDX-License-Identifier: MIT
#include "spelling/skipped_words.h"

#include "base/paths.h"
#include "text/cTextMethods.h"

#include <algorithm>

namespace tolvo {

namespace {

/// The longest part of the text around a place whose characters all pass.
template <class Passes>
QStringView around(QStringView text, qsizetype start, qsizetype length, Passes passes) {
    qsizetype end = start + length;
    while (start > 0 && passes(text[start - 1]))
        --start;
    while (end < text.size() && passes(text[end]))
        ++end;
    return text.sliced(start, end - start);
}

bool isCapitals(QStringView word) {
    const auto isUpper = [](QChar unit) { return unit.isUpper(); };
    return std::none_of(word.cbegin(), word.cend(), [](QChar unit) { return unit.isLower(); }) &&
           std::count_if(word.cbegin(), word.cend(), isUpper) > 1;
}

bool touchesDigit(QStringView text, qsizetype start, qsizetype length) {
    const QStringView run = around(text, start, length, [](QChar unit) {
        return unit.isLetterOrNumber() || unit.isMark() || unit.isSurrogate() || unit == u'_';
    });
    return std::any_of(run.cbegin(), run.cend(), [](QChar unit) { return unit.isDigit(); });
}

} // namespace

SkippedWords::SkippedWords(const TypedTextOptions &options, const AddressRules &addresses,
                           const QString &domains)
    : m_options(options), m_addresses(addresses), m_domains(domains) {
}

bool SkippedWords::skips(QStringView text, qsizetype start, qsizetype length) const {
    if (m_options.skipCapitals && isCapitals(text.sliced(start, length)))
        return true;
    if (m_options.skipDigits && touchesDigit(text, start, length))
        return true;
    if (!m_addresses || (!m_options.skipAddresses && !m_options.skipFileNames))
        return false;
    const QStringView run = trimQuoteMarks(trimStopCharacters(
        StripBrackets(around(text, start, length, [](QChar unit) { return !unit.isSpace(); }))));
    if (isAddress(run))
        return m_options.skipAddresses;
    return m_options.skipFileNames && m_addresses->IsWebOrFileName(run);
}

bool SkippedWords::isAddress(QStringView run) const {
    const qsizetype at = run.indexOf(u'@');
    if (at > 0 && at < run.size() - 1)
        return true;
    if (run.contains(u"://") || run.startsWith(u"www.", Qt::CaseInsensitive) ||
        run.startsWith(u"mailto:", Qt::CaseInsensitive))
        return true;
    const qsizetype slash = run.indexOf(u'/');
    const QStringView host = slash < 0 ? run : run.first(slash);
    return host.contains(u'.') && m_domains.holds(fnExtension(host));
}

SkippedWords skippedWords(const SettingsStore &store, const cTextMethods &textMethods) {
    return {loadTypedTextOptions(store), textMethods.addressRules(), textMethods.topLevelDomains()};
}

} // namespace tolvo
