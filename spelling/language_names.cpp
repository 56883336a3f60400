// SPDX-License-Identifier: MIT
#include "spelling/language_names.h"

#include <QByteArray>
#include <array>
#include <memory>
#include <unicode/uldnames.h>
#include <unicode/uloc.h>

namespace tolvo {

namespace {

constexpr int longestName = 200; ///< UTF-16 code units

QByteArray icuName(QString locale) {
    return locale.replace(u'-', u'_').toUtf8();
}

using DisplayNames = std::unique_ptr<ULocaleDisplayNames, decltype(&uldn_close)>;

DisplayNames namesIn(const QByteArray &language) {
    UErrorCode error = U_ZERO_ERROR;
    std::array contexts{UDISPCTX_CAPITALIZATION_FOR_UI_LIST_OR_MENU};
    return {uldn_openForContext(language.constData(), contexts.data(), int(contexts.size()), &error),
            &uldn_close};
}

/// What a function of the data writes; empty if it fails.
template <class Write>
QString written(Write write) {
    std::array<char16_t, longestName> name{};
    UErrorCode error = U_ZERO_ERROR;
    const int length = write(name.data(), int(name.size()), &error);
    return U_SUCCESS(error) && length <= int(name.size()) ? QString::fromUtf16(name.data(), length)
                                                          : QString();
}

/// The name of a language in the language of `in`; empty if the data have none.
QString nameOfLanguage(const QString &language, const QByteArray &in) {
    const QByteArray code = language.toUtf8();
    const DisplayNames names = namesIn(in);
    const QString name = written([&](char16_t *to, int size, UErrorCode *error) {
        return uldn_languageDisplayName(names.get(), code.constData(), to, size, error);
    });
    return name.compare(language, Qt::CaseInsensitive) == 0 ? QString() : name;
}

} // namespace

QString languageOf(const QString &locale) {
    return locale.section(u'-', 0, 0).section(u'_', 0, 0).toLower();
}

bool isKnownLanguage(const QString &locale) {
    return !nameOfLanguage(languageOf(locale), "en").isEmpty();
}

bool isOfMainTerritory(const QString &locale) {
    std::array<char, ULOC_FULLNAME_CAPACITY> shortest{};
    UErrorCode error = U_ZERO_ERROR;
    uloc_minimizeSubtags(icuName(locale).constData(), shortest.data(), int(shortest.size()), &error);
    return U_SUCCESS(error) && languageOf(locale) == QLatin1StringView(shortest.data());
}

QString territoryName(const QString &locale) {
    const QByteArray id = icuName(locale);
    std::array<char, ULOC_COUNTRY_CAPACITY> territory{};
    UErrorCode error = U_ZERO_ERROR;
    uloc_getCountry(id.constData(), territory.data(), int(territory.size()), &error);
    if (U_FAILURE(error) || territory.front() == '\0')
        return {};
    const DisplayNames names = namesIn(id);
    return written([&](char16_t *to, int size, UErrorCode *status) {
        return uldn_regionDisplayName(names.get(), territory.data(), to, size, status);
    });
}

QString languageName(const QString &locale) {
    const QByteArray id = icuName(locale);
    const QString language = languageOf(locale);
    for (const QByteArray &in : {id, QByteArray("en")}) {
        if (nameOfLanguage(language, in).isEmpty())
            continue;
        const DisplayNames names = namesIn(in);
        const QString name = written([&](char16_t *to, int size, UErrorCode *error) {
            return uldn_localeDisplayName(names.get(), id.constData(), to, size, error);
        });
        if (!name.isEmpty())
            return name.at(0).toTitleCase() + name.mid(1);
    }
    return locale;
}

} // namespace tolvo
