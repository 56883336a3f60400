// SPDX-License-Identifier: MIT
// Bytes of foreign text files: each is a text or none, and a text that is read survives being written and
// read again in every encoding with a mark.
#include "base/text_encoding.h"
#include "fuzz/fuzz.h"

#include <QStringDecoder>
#include <QStringEncoder>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    using namespace tolvo;
    const QByteArrayView file(data, static_cast<qsizetype>(size));
    const auto text = decodedText(file);
    if (!text)
        return 0;
    fuzz::require(!text->contains(QChar(0)) && text->size() <= file.size());
    for (const auto encoding :
         {QStringConverter::Utf8, QStringConverter::Utf16LE, QStringConverter::Utf16BE}) {
        if (encoding == QStringConverter::Utf8 && !text->isValidUtf16())
            continue; // half a pair has no form there
        QStringEncoder encoder(encoding, QStringConverter::Flag::WriteBom);
        const QByteArray written = encoder(*text);
        fuzz::require(!encoder.hasError());
        fuzz::require(text->isEmpty() || decodedText(written) == text);
    }
    return 0;
}
