// SPDX-License-Identifier: MIT
// Character references and percent encoding from foreign text.
#include "base/failure.h"
#include "fuzz/fuzz.h"
#include "text/entities.h"

using namespace tolvo;

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size) {
    const QString text =
        QString::fromLatin1(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    try {
        const QString decoded = decodeNumericEntities(text);
        fuzz::require(decoded.size() <= text.size() && (text.contains(u"&#") || decoded == text));
    } catch (const Failure &failure) {
        fuzz::require(failure.number() == failureNumber::overflow);
    }
    const QString named = decodeNamedEntities(text);
    fuzz::require(named.size() <= text.size() && (text.contains(u'&') || named == text));
    return 0;
}
