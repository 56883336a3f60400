// SPDX-License-Identifier: MIT
#include "powerbuttons/shared_steps.h"

#include "powerbuttons/circular_check.h"

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

/// The settings of a search or a replacement as a user says them.
QString searchWords(const CAction &action, bool replacing) {
    const auto value = [&action](const char *key) { return action.Param(QLatin1StringView(key)); };
    QString words = u'"' + value("Find") + u'"';
    if (replacing)
        words += QStringLiteral(" becomes \"") + value("Replace") + u'"' +
                 (value("ReplaceAll") == QLatin1StringView("1") ? QStringLiteral(" everywhere")
                                                                : QStringLiteral(" once"));
    if (value("Mode") == QLatin1StringView("2"))
        words += QStringLiteral(", with wildcards");
    else if (value("Mode") == QLatin1StringView("3"))
        words += QStringLiteral(", a regular expression");
    return words;
}

QString settingsWords(const CAction &action) {
    const QString &token = action.Tool()->Token();
    const bool replacing = token == QLatin1StringView("edREP");
    return replacing || token == QLatin1StringView("edSRC") ? searchWords(action, replacing)
                                                            : action.Details();
}

/// What is to be said of a step besides its name.
QString remark(const CAction &action) {
    if (action.switchedOff())
        return QStringLiteral(" (switched off)");
    if (!action.Tool()->gotDialog())
        return {};
    switch (action.DlgOption()) {
    case SettingsFrom::Custom:
        return action.Details().isEmpty() ? QString() : QStringLiteral(" (%1)").arg(settingsWords(action));
    case SettingsFrom::Current:
        return QStringLiteral(" (with the settings last used)");
    case SettingsFrom::Prompt:
        return QStringLiteral(" (asks for its settings)");
    }
    return QStringLiteral(" (does nothing)");
}

void addLines(const SharedButtons &shared, const CPowerButton &button, const QString &before,
              QStringList &lines) {
    for (int step = 1; step <= button.Count(); ++step) {
        const CAction &action = *button.Item(step);
        const QString number = before + QString::number(step) + u'.';
        const std::optional<int> target = targetOfStep(action);
        const QString indent(3 * before.count(u'.'), u' ');
        if (!target || action.switchedOff()) {
            lines += indent + number + u' ' + action.Tool()->plainName() + remark(action);
            continue;
        }
        const CPowerButton &inner = *shared.buttons.at(*target - 1);
        lines += indent + number + QStringLiteral(" PowerButton: ") + inner.Name;
        addLines(shared, inner, number, lines);
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
