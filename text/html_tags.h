// SPDX-License-Identifier: MIT
// The tags of an HTML page, read as tolerantly as browsers do.
#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>
#include <optional>

namespace tolvo {

struct HtmlTag {
    QString name; ///< in small letters; empty for a comment or a declaration
    bool closing = false;
    QStringView inside; ///< after the name, up to ">"

    /// The value of an attribute with its references decoded; empty without one.
    [[nodiscard]] QString attribute(QStringView wanted) const;
};

/// Reads the tags of a text one by one, from the front to the end.
class HtmlTags {
  public:
    explicit HtmlTags(QStringView text) : m_text(text) {}

    /// The tag, comment or declaration at a "<", with its end moved to `at`; nothing if none begins there.
    [[nodiscard]] std::optional<HtmlTag> take(qsizetype &at);
    /// After a tag whose content is no text, such as a script: moves `at` after its end tag; not at all if it
    /// has none.
    void skipContent(const QString &name, qsizetype &at);

  private:
    [[nodiscard]] qsizetype endOfTag(qsizetype start);

    QStringView m_text;
    bool m_quotesCount = true; ///< a quote that is never closed is no quote
    bool m_mayEnd = true;      ///< there may be another ">"
    bool m_commentsEnd = true; ///< there may be another "-->"
    QStringList m_neverClosed; ///< names without another end tag
};

} // namespace tolvo
