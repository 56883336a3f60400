// SPDX-License-Identifier: MIT
// Character references and percent encoding from foreign text.
#include "base/failure.h"
#include "text/entities.h"

#include <cstdlib>

using namespace tolvo;

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size) {
    const QString text =
        QString::fromLatin1(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    try {
        const QString decoded = decodeNumericEntities(text);
        if (decoded.size() > text.size() || (!text.contains(u"&#") && decoded != text))
            std::abort();
    } catch (const Failure &failure) {
        if (failure.number() != failureNumber::overflow)
            std::abort();
    }
    const QString named = decodeNamedEntities(text);
    if (named.size() > text.size() || (!text.contains(u'&') && named != text))
        std::abort();
    return 0;
}
