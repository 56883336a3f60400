// SPDX-License-Identifier: MIT
// What a shell offers while a step is typed.
#pragma once

#include "shell/headless/steps.h"

#include <QString>
#include <QStringList>

namespace tolvo {

/// The whole words that `begun` can become, each followed by a TAB and what it is. A tool with settings is
/// offered with a colon as well; after the colon come those of its settings that aren't there yet, each with
/// a value; after "PowerButton=" the buttons that are defined.
///   "ccU" gives "ccUPP", TAB, "UPPER CASE"
///   "foWRP:Width=60, J" gives "foWRP:Width=60, Justify=0", TAB, "Justify"
[[nodiscard]] QStringList completions(const HeadlessWorld &world, const QString &begun);

/// The PowerButtons that are defined: number, TAB, name.
[[nodiscard]] QStringList buttonList(const HeadlessWorld &world);

} // namespace tolvo
