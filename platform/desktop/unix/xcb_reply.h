// SPDX-License-Identifier: MIT
#pragma once

#include <cstdlib>
#include <memory>

namespace tolvo {

struct FreeXcbReply {
    void operator()(void *memory) const { std::free(memory); }
};

/// Owns a reply or an event of the X server, which the library has allocated with malloc.
template <class T>
using Reply = std::unique_ptr<T, FreeXcbReply>;

} // namespace tolvo
