// SPDX-License-Identifier: MIT
#include "spelling/dictionary_encoding.h"

#include <unicode/ucnv.h>

namespace tolvo {

namespace {

/// The IANA name of an encoding (https://www.iana.org/assignments/character-sets) for a name from an affix
/// file.
QByteArray registeredName(QByteArray name) {
    name = name.trimmed().toUpper();
    if (name.isEmpty())
        return "ISO-8859-1";
    if (name.startsWith("ISO8859"))
        name.replace("ISO8859", "ISO-8859");
    else if (name.startsWith("MICROSOFT-CP"))
        name.replace("MICROSOFT-CP", "WINDOWS-");
    else if (name.startsWith("TIS620"))
        name = "TIS-620";
    return name;
}

} // namespace

class DictionaryEncoding::Converter {
  public:
    explicit Converter(const QByteArray &name) : handle(ucnv_open(name.constData(), &error)) {
        ucnv_setFromUCallBack(handle, UCNV_FROM_U_CALLBACK_STOP, nullptr, nullptr, nullptr, &error);
    }
    ~Converter() { ucnv_close(handle); }
    Converter(const Converter &) = delete;
    Converter &operator=(const Converter &) = delete;

    UErrorCode error = U_ZERO_ERROR;
    UConverter *handle; ///< none for an unknown name
};

DictionaryEncoding::DictionaryEncoding(const QByteArray &name)
    : m_converter(std::make_unique<Converter>(registeredName(name))) {
}

DictionaryEncoding::~DictionaryEncoding() = default;

bool DictionaryEncoding::isValid() const {
    return U_SUCCESS(m_converter->error);
}

std::optional<std::string> DictionaryEncoding::encode(const QString &text) {
    if (!isValid())
        return std::nullopt;
    const auto length = static_cast<int32_t>(text.size());
    std::string bytes(static_cast<std::size_t>(
                          UCNV_GET_MAX_BYTES_FOR_STRING(length, ucnv_getMaxCharSize(m_converter->handle))),
                      '\0');
    UErrorCode error = U_ZERO_ERROR;
    const int32_t written =
        ucnv_fromUChars(m_converter->handle, bytes.data(), static_cast<int32_t>(bytes.size()),
                        reinterpret_cast<const char16_t *>(text.utf16()), length, &error);
    if (U_FAILURE(error))
        return std::nullopt;
    bytes.resize(static_cast<std::size_t>(written));
    // Some characters have a likeness in the encoding, which is another character on the way back.
    if (decode(bytes) != text)
        return std::nullopt;
    return bytes;
}

QString DictionaryEncoding::decode(const std::string &bytes) {
    if (!isValid())
        return {};
    // No byte gives more than two units.
    QString text(static_cast<qsizetype>(bytes.size() * 2 + 1), Qt::Uninitialized);
    UErrorCode error = U_ZERO_ERROR;
    const int32_t written = ucnv_toUChars(m_converter->handle, reinterpret_cast<char16_t *>(text.data()),
                                          static_cast<int32_t>(text.size()), bytes.data(),
                                          static_cast<int32_t>(bytes.size()), &error);
    text.truncate(U_SUCCESS(error) ? written : 0);
    return text;
}

} // namespace tolvo
