// SPDX-License-Identifier: MIT
// The effect of a step on the text at hand, for the PowerButton editor.
#pragma once

#include <QList>
#include <QString>
#include <functional>

namespace tolvo {

class CPowerButton;

/// A part of a text, in UTF-16 units from 0; an empty one is a place.
struct TextSpan {
    int start = 0;
    int length = 0;

    bool operator==(const TextSpan &) const = default;
};

/// One step on the text as the steps before it leave it.
struct StepEffect {
    QString before;
    QString after;
    QList<TextSpan> taken; ///< what is different in `before`, in its order
    QList<TextSpan> put;   ///< and in `after`
    TextSpan selection;    ///< in `after`
    QString says;          ///< what the step reports, or why nothing happens: "Asks when run"
};

/// Works out effects in the background.
class StepEffects {
  public:
    using Deliver = std::function<void(const StepEffect &)>;

    virtual ~StepEffects() = default;
    /// Calls `deliver` once with the effect of a step, by its position from 1, unless a later call or
    /// cancel() ends that before. The button may change as soon as this returns.
    virtual void ask(const CPowerButton &button, int position, const Deliver &deliver) = 0;
    virtual void cancel() = 0;
};

} // namespace tolvo
