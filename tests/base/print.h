// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <ostream>
#include <string>

// Google Test prints texts as UTF-8.
inline void PrintTo(const QString &text, std::ostream *out) {
    *out << '"' << text.toStdString() << '"';
}
inline void PrintTo(QStringView text, std::ostream *out) {
    PrintTo(text.toString(), out);
}

/// A text for a failure's message.
inline std::string shown(QStringView text) {
    return text.toString().toStdString();
}
