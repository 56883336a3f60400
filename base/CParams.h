// SPDX-License-Identifier: MIT
// Settings strings: the text form of a tool's settings.
//   CParams(u"Mode=1, Find=abc, MatchCase=0"_s).arg(u"Find"_s) == u"abc"
#pragma once

#include <QHash>
#include <QString>

namespace tolvo {

/// What parts the pairs of a settings string.
inline constexpr QLatin1StringView settingsSeparator(", ");

/// The parsed form of a settings string. Pairs are split at comma and blank; each is split at its first "=":
/// the key is trimmed of blanks, the value is kept as it is. A piece without "=" is a key with an empty
/// value. The first pair of a key wins; keys compare exactly. There is no quoting, so a value can't hold a
/// comma followed by a blank: the rest becomes a pair of its own.
class CParams {
  public:
    explicit CParams(const QString &settings = {}) { init(settings); }

    /// Replaces all pairs by those of another settings string.
    void init(const QString &settings, const QString &pairSeparator = settingsSeparator,
              QChar keyValueSeparator = u'=');

    /// The value of a key; "" if the key is missing.
    [[nodiscard]] QString arg(const QString &key) const { return m_pairs.value(key); }

    /// Whether a settings string with the default separators can hold the value: false if the value contains
    /// a comma followed by a blank.
    [[nodiscard]] static bool canHold(QStringView value) { return !value.contains(settingsSeparator); }
    /// The message for a value that can't be held, with `advice` at its end.
    [[nodiscard]] static QString refusal(const QString &advice);

    /// Whether the key is present. Dialogs leave a control alone if its key is missing.
    [[nodiscard]] bool contains(const QString &key) const { return m_pairs.contains(key); }

  private:
    QHash<QString, QString> m_pairs;
};

} // namespace tolvo
