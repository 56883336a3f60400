// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>

namespace tolvo {

/// A library that the program uses and that others make.
struct ThirdParty {
    QString name;
    QString version; ///< the one that runs where that can be asked, else the one at the build
    QString licence; ///< as SPDX writes it
    QString use;     ///< what the program takes it for
    QString address; ///< of its home page
};

/// All of them, by name.
[[nodiscard]] QList<ThirdParty> thirdParties();

} // namespace tolvo
