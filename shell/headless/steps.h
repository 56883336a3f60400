// SPDX-License-Identifier: MIT
// Tools that a command names as words: TOKEN or TOKEN:SETTINGS.
#pragma once

#include "platform/message_box.h"
#include "powerbuttons/CAction.h"
#include "powerbuttons/CPowerButton.h"
#include "powerbuttons/catalogue.h"
#include "text/file_extensions.h"

#include <QString>
#include <memory>
#include <stdexcept>
#include <vector>

namespace tolvo {

class SettingsStore;

/// What all sessions of one process share.
struct HeadlessWorld {
    SettingsStore &store;
    const Catalogue &catalogue;
    FileExtensions &extensions;
    QString dataFolder;
};

/// A request that can't be run; what() says why. Nothing has run then.
class BadRequest : public std::runtime_error {
  public:
    explicit BadRequest(const QString &why) : std::runtime_error(why.toStdString()) {}
};

/// The Action of a step. A step with settings brings them along; one without runs with the settings last
/// used. Throws BadRequest for what is not a tool, and for settings of a tool that has none.
///   "foTRA" or "foWRP:Width=60, Justify=0, Hanging=0, Tab=True"
[[nodiscard]] std::shared_ptr<CAction> actionOf(const Catalogue &catalogue, const QString &step);

/// Throws BadRequest for a tool that lives on a window, be it the Action's own or one in the PowerButtons
/// that it runs.
void refuseWindows(const CAction &action, const CPowerButtonCollection &buttons);

/// Whether any of the boxes reports a failure or a warning.
[[nodiscard]] bool hasWarning(const std::vector<Box> &boxes);

} // namespace tolvo
