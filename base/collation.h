// SPDX-License-Identifier: MIT
// The order of texts as dictionaries have it.
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>
#include <QStringView>

namespace tolvo {

/// The texts in the order of Unicode's collation (UTS #10) as the root locale has it, digits by the value of
/// their number. Texts that compare equal keep their order.
///   sortedByCollation({u"b", u"a10", u"A2", u"é", u"e"}) is {u"A2", u"a10", u"b", u"e", u"é"}
[[nodiscard]] QList<QStringView> sortedByCollation(const QList<QStringView> &texts);

struct Collation {
    QString language; ///< its code, as "sv" or "de@collation=phonebook"; empty: Unicode's own order
    bool numbersByValue = false; ///< a2 before a10
    bool ignoresCase = false;    ///< "a" and "A" compare equal
};

/// For each text the bytes that compare as the texts do. A language that nobody knows has Unicode's own
/// order.
///   With {u"sv"} the key of u"ö" is after that of u"z".
[[nodiscard]] QList<QByteArray> collationKeys(const QList<QStringView> &texts, const Collation &collation);

/// The codes of all languages with an order of their own or Unicode's, in the order of the codes.
[[nodiscard]] QStringList collationLanguages();

/// How many columns of a fixed-width font a text takes: two for wide characters of East Asia and for emoji
/// (UAX #11), none for accents and for what shows nothing.
///   displayWidth(u"a中é") == 4
[[nodiscard]] qsizetype displayWidth(QStringView text);

} // namespace tolvo
