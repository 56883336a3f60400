// SPDX-License-Identifier: MIT
// The encoding that a dictionary names in its affix file ("ISO8859-1", "UTF-8", "KOI8-R",
// "microsoft-cp1251").
#pragma once

#include <QByteArray>
#include <QString>
#include <memory>
#include <optional>
#include <string>

namespace tolvo {

class DictionaryEncoding {
  public:
    explicit DictionaryEncoding(const QByteArray &name);
    ~DictionaryEncoding();
    DictionaryEncoding(const DictionaryEncoding &) = delete;
    DictionaryEncoding &operator=(const DictionaryEncoding &) = delete;

    /// False for a name that nothing here can convert.
    [[nodiscard]] bool isValid() const;
    /// Nothing if the encoding has no place for a character of the text.
    [[nodiscard]] std::optional<std::string> encode(const QString &text);
    [[nodiscard]] QString decode(const std::string &bytes);

  private:
    class Converters;
    std::unique_ptr<Converters> m_converters;
};

} // namespace tolvo
