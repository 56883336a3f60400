// SPDX-License-Identifier: MIT
#include "base/failure.h"

namespace tolvo {

Failure::Failure(int number, QString description, QString source)
    : m_number(number), m_description(std::move(description)), m_source(std::move(source)),
      m_what(m_description.toUtf8()) {
}

void failOverflow(const QString &what) {
    throw Failure(failureNumber::overflow, what.isEmpty() ? QStringLiteral("Overflow: a number is too large")
                                                          : QStringLiteral("Overflow: ") + what);
}

void failTypeMismatch(const QString &value) {
    throw Failure(failureNumber::typeMismatch,
                  QStringLiteral("Type mismatch: '%1' can't be converted").arg(value));
}

} // namespace tolvo
