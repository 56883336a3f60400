// SPDX-License-Identifier: MIT
#include "spelling/dictionary_encoding.h"

#include <QStringConverter>

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

class DictionaryEncoding::Converters {
  public:
    explicit Converters(const QByteArray &name)
        : encoder(name.constData(), QStringConverter::Flag::Stateless),
          decoder(name.constData(), QStringConverter::Flag::Stateless) {}

    QStringEncoder encoder;
    QStringDecoder decoder;
};

DictionaryEncoding::DictionaryEncoding(const QByteArray &name)
    : m_converters(std::make_unique<Converters>(registeredName(name))) {
}

DictionaryEncoding::~DictionaryEncoding() = default;

bool DictionaryEncoding::isValid() const {
    return m_converters->encoder.isValid() && m_converters->decoder.isValid();
}

std::optional<std::string> DictionaryEncoding::encode(const QString &text) {
    const QByteArray encoded = m_converters->encoder(text);
    const std::string bytes(encoded.constData(), static_cast<std::size_t>(encoded.size()));
    // A converter replaces what it can't encode, and not every converter reports that: the way back shows it.
    if (decode(bytes) != text)
        return std::nullopt;
    return bytes;
}

QString DictionaryEncoding::decode(const std::string &bytes) {
    return m_converters->decoder(QByteArrayView(bytes.data(), static_cast<qsizetype>(bytes.size())));
}

} // namespace tolvo
