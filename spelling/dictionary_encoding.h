// SPDX-License-Identifier: MIT
// The encoding of a dictionary, as the SET line of its affix file names it ("ISO8859-1", "UTF-8", "KOI8-R",
// "microsoft-cp1251"): see the manual page hunspell(5).
#pragma once

#include <QByteArray>
#include <QString>
#include <memory>
#include <optional>
#include <string>

namespace tolvo {

/// Converts words to and from one encoding.
class DictionaryEncoding {
  public:
    explicit DictionaryEncoding(const QByteArray &name);
    ~DictionaryEncoding();
    DictionaryEncoding(const DictionaryEncoding &) = delete;
    DictionaryEncoding &operator=(const DictionaryEncoding &) = delete;

    /// False if the name is unknown: nothing can be converted then.
    [[nodiscard]] bool isValid() const;
    /// The text in the encoding; nothing if the encoding lacks a character of the text.
    [[nodiscard]] std::optional<std::string> encode(const QString &text);
    /// The text that the bytes stand for.
    [[nodiscard]] QString decode(const std::string &bytes);

  private:
    class Converter;
    std::unique_ptr<Converter> m_converter;
};

} // namespace tolvo
