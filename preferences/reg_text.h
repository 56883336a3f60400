// SPDX-License-Identifier: MIT
// The characters of a file in the registry editor's format, line by line.
#pragma once

#include <QByteArray>
#include <QString>

namespace tolvo {

/// Throws a Failure that says what is wrong in which line (from 1; 0 names none).
[[noreturn]] void failInLine(int line, const QString &what);

/// The text of the file, whichever of its encodings it has. Fails in words for what isn't one of them.
[[nodiscard]] QString decodeRegFile(const QByteArray &file);

/// Walks through the lines of a text, which end in CR LF, LF or CR.
class RegLines {
  public:
    explicit RegLines(QStringView text) : m_rest(text) {}

    [[nodiscard]] bool atEnd() const { return m_rest.isEmpty(); }
    /// The next line, without blanks and TABs at its ends. Fails for a line that holds a NUL.
    [[nodiscard]] QStringView next();
    /// The number of the line that next() gave.
    [[nodiscard]] int number() const { return m_number; }

  private:
    QStringView m_rest;
    int m_number = 0;
};

} // namespace tolvo
