// SPDX-License-Identifier: MIT
// The program-wide settings as one value: what the ProgramOptions dialog takes and gives.
#pragma once

#include "platform/font.h"

#include <QDateTime>
#include <QString>
#include <QStringList>
#include <array>
#include <functional>

namespace tolvo {

class SettingsStore;

struct ProgramOptions {
    std::array<Font, 2> fonts; ///< 0 proportional, 1 fixed
    bool useProportional = true;
    bool wordWrap = false;
    QStringList extensions; ///< the user's file extensions, without stops
    bool fullDomainList = false;
    bool showTips = true;
    bool sounds = true;
    bool checkUpdates = true;
    bool allowStats = true;
    int provider = 1; ///< spelling provider, 0 to 3; another number ticks no option and is kept

    bool operator==(const ProgramOptions &) const = default;
};

/// Reads what the store keeps; fonts and word wrap are the session's. Extensions that the system knows by now
/// are left out. A stored check that is no number is not ticked, a provider that is none is the default: what
/// can't be read must not keep the user from the dialog that would put it right.
[[nodiscard]] ProgramOptions loadOptions(const SettingsStore &store, const std::array<Font, 2> &fonts,
                                         bool useProportional, bool wordWrap,
                                         const std::function<bool(const QString &)> &isSystemExtension);

/// Writes everything but word wrap, whose toggle writes itself.
void saveOptions(SettingsStore &store, const ProgramOptions &options);

/// Name, " Bold", " Italic", a blank, the rounded size and " pt".
[[nodiscard]] QString FontDescription(const Font &font);

/// "You last checked for updates %0 days ago", or "You have never checked for updates" without a start date
/// that can be read.
[[nodiscard]] QString lastCheckText(const QString &startDate, const QDateTime &now);

} // namespace tolvo
