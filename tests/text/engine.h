// SPDX-License-Identifier: MIT
// The text engine by itself, for tests: what it says is kept, and it knows one file extension, "txt".
#pragma once

#include "tests/support/failures.h"
#include "text/cTextMethods.h"

#include <QStringList>

namespace tolvo::test {

struct KeptWords : TextHost {
    void setStatus(const QString &text) override { status = text; }
    void warn(const QString &text, const QString &title) override {
        warnings.append(text);
        titles.append(title);
    }
    QString status;
    QStringList warnings;
    QStringList titles;
};

class Engine : public ::testing::Test {
  protected:
    KeptWords said;
    cTextMethods engine{said, [](const QString &extension) { return extension == QLatin1StringView("txt"); }};
};

/// A text of lines: "a|b" stands for a, CR LF, b.
inline QString lines(const char16_t *picture) {
    using namespace Qt::StringLiterals;
    return QString::fromUtf16(picture).replace(u'|', u"\r\n"_s);
}

} // namespace tolvo::test
