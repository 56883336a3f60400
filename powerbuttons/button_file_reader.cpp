// SPDX-License-Identifier: MIT
#include "powerbuttons/button_file_reader.h"

#include "base/CParams.h"
#include "powerbuttons/file_values.h"
#include "powerbuttons/shared_steps.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace tolvo {

namespace {

/// Ends the reading.
struct Refusal {
    QString trouble;
};

constexpr std::array<QLatin1StringView, 3> settingsWords{
    QLatin1StringView("asked for"), QLatin1StringView("own"), QLatin1StringView("last used")};

constexpr qsizetype longestName = 200;
constexpr double largestNumber = 10'000; ///< of an icon's places and sizes

/// A foreign text in a message: its beginning, on one line.
QString quoted(const QString &text) {
    constexpr qsizetype shown = 40;
    return u'"' + text.left(shown).simplified() +
           (text.size() > shown ? QStringLiteral("...\"") : QStringLiteral("\""));
}

} // namespace

QString settingsWord(SettingsFrom option) {
    const auto number = static_cast<qsizetype>(option);
    return number >= 0 && number < std::ssize(settingsWords)
               ? QString(settingsWords.at(static_cast<std::size_t>(number)))
               : QString::number(number);
}

void ButtonFileReader::fail(const QString &what) const {
    throw Refusal{QStringLiteral("Line %1: %2").arg(m_line).arg(what)};
}

QString ButtonFileReader::textOf(const QString &value) const {
    const std::optional<QString> text = textOfFileValue(value);
    if (!text)
        fail(QStringLiteral("%1 is damaged").arg(quoted(value)));
    return *text;
}

double ButtonFileReader::numberOf(const QString &value) const {
    bool isNumber = false;
    const double number = value.toDouble(&isNumber);
    if (!isNumber || !(std::abs(number) <= largestNumber))
        fail(QStringLiteral("%1 is not a number that fits an icon").arg(quoted(value)));
    return number;
}

SharedButtons ButtonFileReader::read(const QString &text) {
    QString lines = text;
    lines.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\r', u'\n');
    if (lines.startsWith(QChar::ByteOrderMark))
        lines.remove(0, 1);
    try {
        for (const QStringView line : QStringView(lines).split(u'\n')) {
            ++m_line;
            if (const QStringView said = line.trimmed(); !said.isEmpty() && !said.startsWith(u'#'))
                m_begun ? readLine(said.toString()) : readTitle(said.toString());
        }
        if (!m_begun)
            throw Refusal{QStringLiteral("Line 1: this is not a PowerButton of Tolvo")};
        endStep();
        checkSteps();
    } catch (const Refusal &refusal) {
        return {{}, refusal.trouble};
    }
    return m_shared;
}

void ButtonFileReader::readTitle(const QString &line) {
    bool isNumber = false;
    const int version = line.mid(buttonFileTitle.size()).toInt(&isNumber);
    if (!line.startsWith(buttonFileTitle) || !isNumber || version < 1)
        fail(QStringLiteral("this is not a PowerButton of Tolvo"));
    if (version > buttonFileVersion)
        fail(QStringLiteral("this PowerButton was written by a newer version of Tolvo"));
    m_begun = true;
    beginButton(QStringLiteral("1"));
}

void ButtonFileReader::readLine(const QString &line) {
    const qsizetype colon = line.indexOf(u':');
    if (colon < 0)
        fail(QStringLiteral("a colon is missing after the first word"));
    readValue(line.first(colon), line.sliced(colon + 1).trimmed());
}

void ButtonFileReader::readValue(const QString &key, const QString &value) {
    if (key == ButtonFileKey::step)
        return readStep(value);
    if (key == ButtonFileKey::button)
        return beginButton(value);
    if (key != ButtonFileKey::set && m_seen.contains(key))
        fail(QStringLiteral("%1 is given twice").arg(quoted(key)));
    m_seen.insert(key);
    if (button().Count() > 0)
        return readStepValue(key, value);
    if (key != ButtonFileKey::name)
        return readIcon(key, value);
    button().Name = textOf(value);
    if (button().Name.size() > longestName)
        fail(QStringLiteral("the name is too long"));
}

void ButtonFileReader::beginButton(const QString &value) {
    if (value != QString::number(m_shared.buttons.size() + 1))
        fail(QStringLiteral("button %1 is expected here").arg(m_shared.buttons.size() + 1));
    if (m_shared.buttons.size() == CPowerButtonCollection::buttonCount)
        fail(QStringLiteral("there are too many PowerButtons"));
    endStep();
    m_shared.buttons.append(std::make_shared<CPowerButton>());
    m_buttonLines.append(m_line);
    m_stepLines.append(QList<int>());
    m_seen.clear();
}

void ButtonFileReader::readIcon(const QString &key, const QString &value) {
    const auto flag = [&] {
        if (value != buttonFileYes && value != QLatin1StringView("no"))
            fail(QStringLiteral("yes or no is expected here"));
        return value == buttonFileYes;
    };
    if (key == ButtonFileKey::icon)
        button().IconText = textOf(value);
    else if (key == ButtonFileKey::font)
        button().IconFontName = textOf(value);
    else if (key == ButtonFileKey::size)
        button().IconFontSize = numberOf(value);
    else if (key == ButtonFileKey::bold)
        button().IconFontBold = flag();
    else if (key == ButtonFileKey::italic)
        button().IconFontItalic = flag();
    else if (key == ButtonFileKey::x)
        button().IconX = numberOf(value);
    else if (key == ButtonFileKey::y)
        button().IconY = numberOf(value);
    else
        fail(QStringLiteral("%1 is not known here").arg(quoted(key)));
}

void ButtonFileReader::readStep(const QString &value) {
    const QString token = value.section(u'#', 0, 0).trimmed();
    const ToolPtr tool = m_tools.tool(token);
    if (!tool || tool->isHeading() || token == unknownToolToken)
        fail(QStringLiteral("there is no tool %1").arg(quoted(token)));
    if (button().Count() == mostSharedSteps)
        fail(QStringLiteral("there are more than %1 steps").arg(mostSharedSteps));
    endStep();
    button().Add(std::make_shared<CAction>(tool, SettingsFrom::Prompt, QString()));
    m_stepLines.back().append(m_line);
    m_seen.clear();
}

void ButtonFileReader::endStep() {
    if (!m_pairs.isEmpty())
        button().Item(button().Count())->setDetails(m_pairs.join(settingsSeparator));
    m_pairs.clear();
}

void ButtonFileReader::readStepValue(const QString &key, const QString &value) {
    if (key == ButtonFileKey::set) {
        m_pairs.append(textOf(value));
        return;
    }
    if (key == ButtonFileKey::switched) {
        if (value != buttonFileOff)
            fail(QStringLiteral("off is expected here"));
        button().Item(button().Count())->setSwitchedOff(true);
        return;
    }
    if (key != ButtonFileKey::settings)
        fail(QStringLiteral("%1 is not known here").arg(quoted(key)));
    const auto word = std::find(settingsWords.begin(), settingsWords.end(), value);
    bool isNumber = word != settingsWords.end();
    const int number = isNumber ? static_cast<int>(word - settingsWords.begin()) : value.toInt(&isNumber);
    if (!isNumber)
        fail(QStringLiteral("own, last used or asked for is expected here"));
    button().Item(button().Count())->setDlgOption(static_cast<SettingsFrom>(number));
}

void ButtonFileReader::checkSteps() {
    const StepTrouble found = stepTrouble(m_shared.buttons);
    m_line =
        found.step > 0 ? m_stepLines.at(found.button).at(found.step - 1) : m_buttonLines.at(found.button);
    switch (found.kind) {
    case StepTrouble::Kind::None:
        break;
    case StepTrouble::Kind::NoTarget:
        fail(QStringLiteral("this step runs a PowerButton that is not in the file"));
    case StepTrouble::Kind::Cycle:
        fail(QStringLiteral("with this step the PowerButton would run itself"));
    case StepTrouble::Kind::TooMany:
        fail(QStringLiteral("more than %1 steps would run").arg(mostSharedSteps));
    case StepTrouble::Kind::Unused:
        fail(found.button == 0 ? QStringLiteral("there are no steps")
                               : QStringLiteral("no step runs this PowerButton"));
    }
}

} // namespace tolvo
