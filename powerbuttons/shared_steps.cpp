// SPDX-License-Identifier: MIT
#include "powerbuttons/shared_steps.h"

#include "powerbuttons/circular_check.h"
#include "powerbuttons/step_words.h"

#include <algorithm>

namespace tolvo {

namespace {

using Buttons = QList<std::shared_ptr<CPowerButton>>;

/// Goes through the buttons from the first one, into nested ones.
class Walk {
  public:
    explicit Walk(const Buttons &buttons)
        : m_buttons(buttons), m_places(buttons.size(), Place::New), m_counts(buttons.size(), 0) {}

    StepTrouble go() {
        if (m_buttons.front()->Count() == 0)
            return {StepTrouble::Kind::Unused};
        visit(0);
        const qsizetype unused = m_places.indexOf(Place::New);
        if (m_trouble.kind == StepTrouble::Kind::None && unused >= 0)
            m_trouble = {StepTrouble::Kind::Unused, static_cast<int>(unused)};
        return m_trouble;
    }

  private:
    enum class Place { New, Open, Done };

    /// False once something is wrong.
    bool visit(int index) {
        m_places[index] = Place::Open;
        const CPowerButton &button = *m_buttons.at(index);
        for (int step = 1; step <= button.Count(); ++step) {
            const StepTrouble::Kind kind = look(*button.Item(step), m_counts[index]);
            if (m_trouble.kind != StepTrouble::Kind::None)
                return false; // further inside
            if (kind != StepTrouble::Kind::None) {
                m_trouble = {kind, index, step};
                return false;
            }
        }
        m_places[index] = Place::Done;
        return true;
    }

    StepTrouble::Kind look(const CAction &action, int &count) {
        ++count;
        if (runsButton(action)) {
            const int target = targetOfStep(action).value_or(0);
            if (target < 1 || target > m_buttons.size())
                return StepTrouble::Kind::NoTarget;
            if (m_places.at(target - 1) == Place::Open)
                return StepTrouble::Kind::Cycle;
            if (m_places.at(target - 1) == Place::New && !visit(target - 1))
                return StepTrouble::Kind::None;
            count += m_counts.at(target - 1);
        }
        return count > mostSharedSteps ? StepTrouble::Kind::TooMany : StepTrouble::Kind::None;
    }

    const Buttons &m_buttons;
    QList<Place> m_places;
    QList<int> m_counts; ///< of the steps that each button runs
    StepTrouble m_trouble;
};

void addLines(const SharedButtons &shared, const CPowerButton &button, const QString &before,
              QStringList &lines) {
    const auto nameOfButton = [&shared](int number) { return shared.buttons.at(number - 1)->Name; };
    for (int step = 1; step <= button.Count(); ++step) {
        const CAction &action = *button.Item(step);
        const QString number = before + QString::number(step) + u'.';
        const QString indent(3 * before.count(u'.'), u' ');
        lines += indent + number + u' ' + stepInWords(action, nameOfButton) + offRemark(action);
        if (const std::optional<int> target = targetOfStep(action); target && !action.switchedOff())
            addLines(shared, *shared.buttons.at(*target - 1), number, lines);
    }
}

} // namespace

bool runsButton(const CAction &action) {
    return action.Tool() && action.Tool()->Token() == powerButtonToken;
}

std::optional<int> targetOfStep(const CAction &action) {
    return action.DlgOption() == SettingsFrom::Custom ? targetOf(action) : std::nullopt;
}

StepTrouble stepTrouble(const Buttons &buttons) {
    return Walk(buttons).go();
}

QStringList sharedStepLines(const SharedButtons &shared) {
    QStringList lines;
    addLines(shared, shared.main(), {}, lines);
    return lines;
}

} // namespace tolvo
