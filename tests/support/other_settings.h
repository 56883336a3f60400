// SPDX-License-Identifier: MIT
// Tool settings for walks over all of them: which values they have is read from their field lists.
#pragma once

#include "text/tool_settings.h"

namespace tolvo::test {

/// Every field has another value than its default, and one that the tool's dialog can show.
template <class Settings>
[[nodiscard]] Settings otherSettings() {
    struct Change {
        void operator()(bool &value) const { value = !value; }
        void operator()(int &value) const { ++value; }
        void operator()(QString &value) const { value = QStringLiteral("=>"); }
        void operator()(QStringList &value) const { value = {QStringLiteral("=>"), QStringLiteral("# ")}; }
    };
    Settings settings;
    std::apply([&settings](const auto &...field) { (Change()(settings.*field.member), ...); },
               Settings::fields);
    return settings;
}

} // namespace tolvo::test
