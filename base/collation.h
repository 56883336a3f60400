// SPDX-License-Identifier: MIT
// The order of texts as dictionaries have it.
#pragma once

#include <QList>
#include <QStringView>

namespace tolvo {

/// The texts in the order of Unicode's collation (UTS #10) as the root locale has it, digits by the value of
/// their number. Texts that compare equal keep their order.
///   sortedByCollation({u"b", u"a10", u"A2", u"é", u"e"}) is {u"A2", u"a10", u"b", u"e", u"é"}
[[nodiscard]] QList<QStringView> sortedByCollation(const QList<QStringView> &texts);

/// How many columns of a fixed-width font a text takes: two for wide characters of East Asia and for emoji
/// (UAX #11), none for accents and for what shows nothing.
///   displayWidth(u"a中é") == 4
[[nodiscard]] qsizetype displayWidth(QStringView text);

} // namespace tolvo
