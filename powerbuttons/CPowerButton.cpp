// SPDX-License-Identifier: MIT
#include "powerbuttons/CPowerButton.h"

#include <algorithm>
#include <tuple>

namespace tolvo {

std::shared_ptr<CAction> CPowerButton::Add(std::shared_ptr<CAction> action, std::optional<int> index,
                                           std::optional<int> before, std::optional<int> after) {
    const auto insertAt = [&](int place) { m_actions.insert(std::clamp(place, 0, Count()), action); };
    if (before)
        insertAt(*before - 1);
    else if (after)
        insertAt(*after);
    else if (index && Item(*index))
        m_actions[*index - 1] = action;
    else
        m_actions.append(action);
    return action;
}

std::shared_ptr<CAction> CPowerButton::Item(int position) const {
    return m_actions.value(position - 1);
}

void CPowerButton::Remove(int position) {
    if (position >= 1 && position <= Count())
        m_actions.removeAt(position - 1);
}

bool CPowerButton::operator==(const CPowerButton &other) const {
    const auto properties = [](const CPowerButton &button) {
        return std::tie(button.Name, button.IconText, button.IconFontName, button.IconFontSize,
                        button.IconFontBold, button.IconFontItalic, button.IconX, button.IconY);
    };
    const auto equal = [](const std::shared_ptr<CAction> &a, const std::shared_ptr<CAction> &b) {
        return *a == *b;
    };
    return properties(*this) == properties(other) && std::ranges::equal(m_actions, other.m_actions, equal);
}

bool allSwitchedOff(const CPowerButton &button) {
    int position = button.Count();
    while (position > 0 && button.Item(position)->switchedOff())
        --position;
    return button.Count() > 0 && position == 0;
}

void CPowerButtonCollection::Add(std::shared_ptr<CPowerButton> button, int number) {
    if (number >= 1 && number <= buttonCount)
        m_buttons.at(static_cast<std::size_t>(number - 1)) = std::move(button);
}

std::shared_ptr<CPowerButton> CPowerButtonCollection::Item(int number) const {
    if (number < 1 || number > buttonCount)
        return nullptr;
    return m_buttons.at(static_cast<std::size_t>(number - 1));
}

int CPowerButtonCollection::Count() const {
    return static_cast<int>(
        std::ranges::count_if(m_buttons, [](const auto &button) { return button != nullptr; }));
}

void CPowerButtonCollection::Remove(int number) {
    Add(nullptr, number);
}

} // namespace tolvo
