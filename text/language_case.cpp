// SPDX-License-Identifier: MIT
#include "text/language_case.h"

#include "base/language_case.h"
#include "text/irish_case.h"

namespace tolvo {

QString caseByLanguage(QStringView text, const LanguageCaseSettings &settings) {
    if (settings.language == LanguageCaseSettings::Language::Irish)
        return irishCase(text, settings.kind);
    static constexpr std::array codes = {"", "az", "nl", "el", "lt", "tr", "ga"};
    static_assert(codes.size() == LanguageCaseSettings::languages.size());
    const char *language = codes.at(static_cast<std::size_t>(settings.language));
    switch (settings.kind) {
    case LanguageCaseSettings::Kind::Lower:
        return lowerCaseIn(text, language);
    case LanguageCaseSettings::Kind::Title:
        return titleCaseIn(text, language);
    case LanguageCaseSettings::Kind::Upper:
        break;
    }
    return upperCaseIn(text, language);
}

} // namespace tolvo
