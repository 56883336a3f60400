// SPDX-License-Identifier: MIT
#include "text/typography_rules.h"

namespace tolvo {

namespace {

constexpr char16_t enDash = u'\u2013';
constexpr char16_t emDash = u'\u2014';
constexpr char16_t noBreak = u'\u00A0';
constexpr char16_t thin = u'\u202F';
constexpr TypographyRules::Marks english{u"\u201C", u"\u201D"};
constexpr TypographyRules::Marks englishInner{u"\u2018", u"\u2019"};
constexpr TypographyRules::Marks guillemets{u"\u00AB", u"\u00BB"};
constexpr QStringView englishElisions = u" tis twas twere twill em cause til n ";

constexpr std::array<TypographyRules, TypographySettings::words.size()> table = {{
    {english,
     englishInner,
     enDash,
     true,
     englishElisions,
     u" p. pp. No. no. vol. ch. fig. c. ",
     u" Mr Mrs Ms Dr St Prof Mr. Mrs. Ms. Dr. Prof. ",
     {},
     0,
     false,
     false},
    {english,
     englishInner,
     emDash,
     false,
     englishElisions,
     u" p. pp. No. no. vol. ch. fig. c. ",
     u" Mr. Mrs. Ms. Dr. St. Prof. ",
     {},
     0,
     false,
     false},
    {{u"\u201E", u"\u201C"},
     {u"\u201A", u"\u2018"},
     enDash,
     true,
     u" s ne nen nem n rauf rein raus ",
     u" S. Nr. Bd. Kap. Abb. Art. Tel. ca. § ",
     u" Dr. Prof. Hr. Fr. St. ",
     {},
     noBreak,
     true,
     false},
    {{u"\u00AB\u00A0", u"\u00A0\u00BB"},
     english,
     enDash,
     true,
     {},
     u" p. pp. n° no t. vol. chap. fig. art. ",
     u" M. MM. Mme Mlle Dr Pr Me St Ste ",
     {},
     thin,
     true,
     true},
    {{u"\u201E", u"\u201D"},
     guillemets,
     enDash,
     true,
     {},
     u" s. nr t. r. ul. rozdz. rys. art. ok. § ",
     u" dr prof. p. ks. św. ul. al. ",
     u"aiouwzAIOUWZ",
     noBreak,
     false,
     false},
    {guillemets,
     english,
     emDash,
     true,
     {},
     u" p. pp. n.º núm. pág. págs. vol. cap. fig. art. ",
     u" Sr. Sra. Srta. Dr. Dra. D. Dña. Ud. ",
     {},
     noBreak,
     true,
     false},
}};

} // namespace

const TypographyRules &typographyRules(TypographySettings::Language language) {
    return table.at(static_cast<std::size_t>(language));
}

} // namespace tolvo
