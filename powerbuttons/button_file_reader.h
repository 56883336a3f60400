// SPDX-License-Identifier: MIT
// The lines of a shared PowerButton.
#pragma once

#include "powerbuttons/button_file.h"

#include <QSet>
#include <QStringList>

namespace tolvo {

/// What the first line says, followed by a blank and the version.
inline constexpr QLatin1StringView buttonFileTitle("Tolvo PowerButton");
/// The version that is written, and the newest that is read.
inline constexpr int buttonFileVersion = 1;
inline constexpr QLatin1StringView buttonFileYes("yes");
inline constexpr QLatin1StringView buttonFileOff("off");

/// What stands before the colon of a line.
namespace ButtonFileKey {
inline constexpr QLatin1StringView button("button");
inline constexpr QLatin1StringView name("name");
inline constexpr QLatin1StringView icon("icon");
inline constexpr QLatin1StringView font("font");
inline constexpr QLatin1StringView size("size");
inline constexpr QLatin1StringView bold("bold");
inline constexpr QLatin1StringView italic("italic");
inline constexpr QLatin1StringView x("x");
inline constexpr QLatin1StringView y("y");
inline constexpr QLatin1StringView step("step");
inline constexpr QLatin1StringView settings("settings");
inline constexpr QLatin1StringView set("set");
inline constexpr QLatin1StringView switched("switched");
} // namespace ButtonFileKey

/// What the line "settings" says: "own", "last used", "asked for", or the number of an option without a name.
[[nodiscard]] QString settingsWord(SettingsFrom option);

/// Reads one text, line by line.
class ButtonFileReader {
  public:
    explicit ButtonFileReader(const Catalogue &tools) : m_tools(tools) {}
    [[nodiscard]] SharedButtons read(const QString &text);

  private:
    void readTitle(const QString &line);
    void readLine(const QString &line);
    void readValue(const QString &key, const QString &value);
    void beginButton(const QString &value);
    void readIcon(const QString &key, const QString &value);
    void readStep(const QString &value);
    void endStep();
    void readStepValue(const QString &key, const QString &value);
    void checkSteps();

    [[nodiscard]] CPowerButton &button() { return *m_shared.buttons.back(); }
    [[noreturn]] void fail(const QString &what) const;
    [[nodiscard]] QString textOf(const QString &value) const;
    [[nodiscard]] double numberOf(const QString &value) const;

    const Catalogue &m_tools;
    SharedButtons m_shared;
    int m_line = 0;                ///< the present one, from 1
    bool m_begun = false;          ///< the title has been read
    QSet<QString> m_seen;          ///< what has been said of the present button or step
    QStringList m_pairs;           ///< of the settings of the present step
    QList<int> m_buttonLines;      ///< where each button begins
    QList<QList<int>> m_stepLines; ///< and each of its steps
};

} // namespace tolvo
