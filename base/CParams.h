// SPDX-License-Identifier: MIT
// Settings strings: "Mode=1, Find=abc, MatchCase=0".
#pragma once

#include <QHash>
#include <QString>

namespace tolvo {

/// The parsed form of a settings string. Pairs are split at comma and blank; each is split at its first "=":
/// the key is trimmed of blanks, the value kept as it is. The first pair of a key wins, keys compare exactly.
/// There is no quoting, so that a value can't hold comma and blank: what stands behind becomes a pair of its
/// own.
class CParams {
  public:
    explicit CParams(const QString &settings = {}) { init(settings); }

    /// Parses anew, dropping all older pairs. `keyValueSeparator` is one character.
    void init(const QString &settings, const QString &pairSeparator = QStringLiteral(", "),
              QChar keyValueSeparator = u'=');

    /// The value of a key, "" if the key isn't there.
    [[nodiscard]] QString arg(const QString &key) const { return m_pairs.value(key); }

    /// Whether a settings string with the separators above can hold the value: it would be cut at comma and
    /// blank, and the rest read as pairs of its own.
    [[nodiscard]] static bool canHold(QStringView value) { return !value.contains(u", "); }
    /// What the user is told of a value that can't be held, followed by what to do about it.
    [[nodiscard]] static QString refusal(const QString &advice);

    /// Whether the key is there at all: dialogs leave a control alone whose key is missing.
    [[nodiscard]] bool contains(const QString &key) const { return m_pairs.contains(key); }

  private:
    QHash<QString, QString> m_pairs;
};

} // namespace tolvo
