// SPDX-License-Identifier: MIT
// Tool settings for walks over all of them: which values they have is read from their field lists.
#pragma once

#include "text/tool_settings.h"

namespace tolvo::test {

struct OtherValue {
    void operator()(bool &value) const { value = !value; }
    void operator()(QString &value) const { value = QStringLiteral("=>"); }
    void operator()(QStringList &value) const { value = {QStringLiteral("=>"), QStringLiteral("# ")}; }
    template <class Number> // or an enumeration
    void operator()(Number &value) const {
        value = static_cast<Number>(static_cast<int>(value) + 1);
    }
};

/// Every field has another value than its default, and one that the tool's dialog can show.
template <class Settings>
[[nodiscard]] Settings otherSettings() {
    Settings settings;
    std::apply([&settings](const auto &...field) { (OtherValue()(settings.*field.member), ...); },
               Settings::fields);
    return settings;
}

/// A list of columns has to be one.
template <>
[[nodiscard]] inline ColumnSettings otherSettings() {
    return {QStringLiteral("1,3-"), true};
}

} // namespace tolvo::test
