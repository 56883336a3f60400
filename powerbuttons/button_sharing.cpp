// SPDX-License-Identifier: MIT
#include "powerbuttons/button_sharing.h"

#include "powerbuttons/circular_check.h"
#include "powerbuttons/shared_steps.h"

#include <algorithm>

namespace tolvo {

namespace {

QString settingsOf(int target) {
    return powerButtonKey + QStringLiteral("=%1").arg(target);
}

/// A copy whose steps run the buttons that `numberOf` gives for those that they run.
template <class NumberOf>
std::shared_ptr<CPowerButton> renumbered(const CPowerButton &button, NumberOf numberOf) {
    auto copy = std::make_shared<CPowerButton>(button);
    copy->Clear();
    for (int step = 1; step <= button.Count(); ++step) {
        auto action = std::make_shared<CAction>(*button.Item(step));
        if (const std::optional<int> target = targetOfStep(*action))
            action->setDetails(settingsOf(numberOf(*target)));
        copy->Add(std::move(action));
    }
    return copy;
}

bool isRunnable(const CAction &action) {
    return action.Tool() && action.Tool()->Token() != unknownToolToken;
}

QString stepOf(const CPowerButton &button, int step) {
    return QStringLiteral("Step %1 of \"%2\"").arg(step).arg(button.Name);
}

QString inWords(const StepTrouble &found, const SharedButtons &shared) {
    const CPowerButton &button = *shared.buttons.at(found.button);
    switch (found.kind) {
    case StepTrouble::Kind::None:
        return {};
    case StepTrouble::Kind::NoTarget:
        return stepOf(button, found.step) + QStringLiteral(" runs no PowerButton that is defined");
    case StepTrouble::Kind::Cycle:
        return stepOf(button, found.step) + QStringLiteral(" makes the PowerButton run itself");
    case StepTrouble::Kind::TooMany:
        return QStringLiteral("More than %1 steps would run").arg(mostSharedSteps);
    case StepTrouble::Kind::Unused:
        break;
    }
    return QStringLiteral("There are no actions defined for this PowerButton");
}

/// Collects a button and those that it runs, in the order in which they are met.
class Gathering {
  public:
    explicit Gathering(const CPowerButtonCollection &buttons) : m_buttons(buttons) {}

    SharedButtons gather(int number) {
        if (isEmptyPlace(m_buttons, number))
            return {{}, QStringLiteral("This PowerButton is not defined")};
        m_numbers = {number};
        SharedButtons shared;
        while (shared.buttons.size() < m_numbers.size()) { // placeOf() adds those that steps run
            const auto button = m_buttons.Item(m_numbers.at(shared.buttons.size()));
            for (int step = 1; step <= button->Count(); ++step) {
                if (!isRunnable(*button->Item(step)))
                    return {{}, stepOf(*button, step) + QStringLiteral(" has no tool")};
            }
            shared.buttons.append(renumbered(*button, [this](int target) { return placeOf(target); }));
        }
        const QString trouble = inWords(stepTrouble(shared.buttons), shared);
        return trouble.isEmpty() ? shared : SharedButtons{{}, trouble};
    }

  private:
    /// 0 for a button that isn't defined.
    int placeOf(int number) {
        if (isEmptyPlace(m_buttons, number))
            return 0;
        if (!m_numbers.contains(number))
            m_numbers.append(number);
        return static_cast<int>(m_numbers.indexOf(number)) + 1;
    }

    const CPowerButtonCollection &m_buttons;
    QList<int> m_numbers;
};

/// Gives places, to the innermost buttons first.
class Placing {
  public:
    Placing(const SharedButtons &shared, const CPowerButtonCollection &buttons, int number)
        : m_shared(shared), m_buttons(buttons), m_main(number), m_numbers(shared.buttons.size(), 0) {}

    PlacedButtons place() {
        const auto main = placed(m_shared.main());
        if (m_missing > 0)
            return {{},
                    QStringLiteral("It runs other PowerButtons, for which %1 more empty %2 needed")
                        .arg(m_missing)
                        .arg(m_missing == 1 ? QStringLiteral("place is") : QStringLiteral("places are"))};
        m_places.append({m_main, main});
        return {m_places, {}};
    }

  private:
    std::shared_ptr<CPowerButton> placed(const CPowerButton &button) {
        return renumbered(button, [this](int target) { return numberOf(target - 1); });
    }

    int numberOf(int index) {
        if (m_numbers.at(index) == 0)
            m_numbers[index] = findPlace(placed(*m_shared.buttons.at(index)));
        return m_numbers.at(index);
    }

    int findPlace(const std::shared_ptr<CPowerButton> &button) {
        int empty = 0;
        for (int number = 1; number <= CPowerButtonCollection::buttonCount; ++number) {
            if (number == m_main || m_taken.contains(number))
                continue;
            if (!isEmptyPlace(m_buttons, number) && *m_buttons.Item(number) == *button)
                return number;
            if (empty == 0 && isEmptyPlace(m_buttons, number))
                empty = number;
        }
        if (empty == 0) {
            ++m_missing;
            return -1;
        }
        m_taken.append(empty);
        m_places.append({empty, button});
        return empty;
    }

    const SharedButtons &m_shared;
    const CPowerButtonCollection &m_buttons;
    int m_main;
    QList<int> m_numbers; ///< of each shared one, 0 as long as it has none
    QList<int> m_taken;
    QList<PlacedButtons::Place> m_places;
    int m_missing = 0;
};

} // namespace

SharedButtons gatherButtons(const CPowerButtonCollection &buttons, int number) {
    return Gathering(buttons).gather(number);
}

PlacedButtons placeButtons(const SharedButtons &shared, const CPowerButtonCollection &buttons, int number) {
    return Placing(shared, buttons, number).place();
}

bool isEmptyPlace(const CPowerButtonCollection &buttons, int number) {
    const auto button = buttons.Item(number);
    return !button || (!button->isDefined() && button->Count() == 0);
}

int firstEmptyPlace(const CPowerButtonCollection &buttons) {
    for (int number = 1; number <= CPowerButtonCollection::buttonCount; ++number) {
        if (isEmptyPlace(buttons, number))
            return number;
    }
    return 0;
}

} // namespace tolvo
