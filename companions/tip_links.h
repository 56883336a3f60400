// SPDX-License-Identifier: MIT
#pragma once

#include "powerbuttons/catalogue.h"

#include <QList>
#include <QString>

namespace tolvo {

/// The text of a tip as HTML, each name of a tool in it a link with the tool's token. A name counts as a
/// whole, in its own capitals, and without the stops that announce a dialog.
///   "Trim lines & more" gives "<a href=\"foTRM\">Trim lines</a> &amp; more"
[[nodiscard]] QString withToolLinks(const QString &tip, const QList<Catalogue::PanelItem> &tools);

} // namespace tolvo
