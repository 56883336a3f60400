// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

namespace tolvo::test {

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
