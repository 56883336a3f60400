// SPDX-License-Identifier: MIT
#include "shell/powerbutton_effect.h"

#include "shell/changed_places.h"

#include <algorithm>

namespace tolvo {

namespace {

QString words(const StepResult &result, qsizetype places, bool afterQuestion) {
    switch (result.kind) {
    case StepResult::Kind::Asks:
        return QStringLiteral("Asks when run");
    case StepResult::Kind::Blank:
        return QStringLiteral("No tool yet: nothing happens");
    case StepResult::Kind::SwitchedOff:
        return QStringLiteral("Switched off: nothing happens");
    case StepResult::Kind::NotReached:
        return QStringLiteral("Not reached: a step before it ends the run");
    case StepResult::Kind::Ran:
        break;
    }
    QString says = result.says.simplified();
    if (says.isEmpty())
        says = places == 0 ? QStringLiteral("Nothing changed") : placesText(places);
    return afterQuestion ? says + QStringLiteral(" (without the steps that ask when run)") : says;
}

} // namespace

StepEffect effectOf(const QList<StepResult> &results) {
    const StepResult &last = results.last();
    const bool afterQuestion = std::any_of(results.begin(), results.end() - 1, [](const StepResult &result) {
        return result.kind == StepResult::Kind::Asks;
    });
    StepEffect effect{.before = last.before.text,
                      .after = last.after.text,
                      .taken = {},
                      .put = {},
                      .selection = {last.after.selStart, last.after.selLength},
                      .says = {}};
    const QList<ChangedPlace> places = changedPlaces(effect.before, effect.after);
    effect.says = words(last, places.size(), afterQuestion);
    for (const ChangedPlace &place : places) {
        effect.taken += {static_cast<int>(place.oldStart), static_cast<int>(place.oldLength)};
        effect.put += {static_cast<int>(place.start), static_cast<int>(place.length)};
    }
    return effect;
}

} // namespace tolvo
