// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>
#include <ostream>
#include <string>

/// A text for a failure's message.
inline std::string shown(QStringView text) {
    return text.toUtf8().replace("\r", "\\r").replace("\n", "\\n").replace("\t", "\\t").toStdString();
}

// Google Test prints texts as UTF-8.
inline void PrintTo(const QString &text, std::ostream *out) {
    *out << '"' << shown(text) << '"';
}
inline void PrintTo(QStringView text, std::ostream *out) {
    *out << '"' << shown(text) << '"';
}
inline void PrintTo(const QStringList &texts, std::ostream *out) {
    *out << shown(texts.join(QStringLiteral(" / ")));
}
