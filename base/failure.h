// SPDX-License-Identifier: MIT
// The one exception of the program. Expected outcomes (not found, cancelled, a bad pattern) are results, not
// failures.
#pragma once

#include <QString>
#include <exception>

namespace tolvo {

/// The numbers of failures, as the error report shows them. Each stands for one cause wherever it arises.
namespace failureNumber {
inline constexpr int invalidArgument = 5;
inline constexpr int overflow = 6;
inline constexpr int typeMismatch = 13;
inline constexpr int nestingTooDeep = 28;
inline constexpr int fileNotFound = 53;
inline constexpr int fileAccess = 75;
inline constexpr int objectNotCreated = 429;
inline constexpr int duplicateKey = 457;
inline constexpr int badHexadecimalEscape = 512;
inline constexpr int unknownSpellingProvider = 5002;
inline constexpr int hunspellNotInitialised = 5003;
inline constexpr int serviceMessage = 5005;
inline constexpr int unexpectedElement = 5006;
inline constexpr int noAnswer = 5007;
inline constexpr int serviceException = 5011;
inline constexpr int httpStatus = 5012;
inline constexpr int invalidPattern = 5018;
inline constexpr int patternLimit = 5020;
inline constexpr int noHandler = static_cast<int>(0x80040202);
} // namespace failureNumber

/// An unexpected failure: a number and a description that a user can read. A failure that nothing else
/// catches is caught where an event enters the program and shown as the error report; the text stays as it
/// is.
class Failure : public std::exception {
  public:
    Failure(int number, QString description, QString source = {});

    [[nodiscard]] int number() const { return m_number; }
    [[nodiscard]] const QString &description() const { return m_description; }
    /// "Class::procedure" where the failure arose; empty if unknown.
    [[nodiscard]] const QString &source() const { return m_source; }
    [[nodiscard]] const char *what() const noexcept override { return m_what.constData(); }

  private:
    int m_number;
    QString m_description;
    QString m_source;
    QByteArray m_what;
};

/// Throws failure 6: a number is too large for its type. `what` says which, in words; empty gives a general
/// description.
[[noreturn]] void failOverflow(const QString &what = {});
/// Throws failure 13: `value` is not a number, flag or date where one is needed.
[[noreturn]] void failTypeMismatch(const QString &value);

} // namespace tolvo
