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

struct AnyValue {
    template <class Value>
    operator Value() const; // NOLINT(google-explicit-constructor)
};

/// How many members a struct has: with as many initializers it compiles, with more it doesn't.
template <class Struct, class... Values>
[[nodiscard]] constexpr std::size_t memberCount() {
    if constexpr (requires { Struct{Values()..., AnyValue()}; })
        return memberCount<Struct, Values..., AnyValue>();
    else
        return sizeof...(Values);
}

} // namespace tolvo::test
