// SPDX-License-Identifier: MIT
// Files of examples, so that a new case is a row and no code.
#pragma once

#include <QFile>
#include <QStringList>
#include <gtest/gtest.h>

namespace tolvo::test {

/// A unit that a file would not show or keep, by its sign.
[[nodiscard]] inline QString withoutSigns(QString text) {
    const QString signs = QStringLiteral("␍␊⇥⍽␠");
    const QString units = QStringLiteral("\r\n\t\u00A0 ");
    for (qsizetype i = 0; i < signs.size(); ++i)
        text.replace(signs[i], units[i]);
    return text;
}

/// Calls with the name of the section, as in "[Sort]", and the sides of each row, "before→after"; a side that
/// is not there is empty. All other lines are comments. Fails without as many rows as there are to be.
template <class Check>
void forEachExample(const char *path, int rows, Check check) {
    QFile file(qEnvironmentVariable("TOLVO_SOURCE") + QLatin1StringView(path));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << path;
    QString section;
    for (const QString &line : QString::fromUtf8(file.readAll()).split(u'\n')) {
        if (line.startsWith(u'[') && line.endsWith(u']') && !line.contains(u'→'))
            section = line.sliced(1).chopped(1);
        QStringList sides = withoutSigns(line).split(u'→');
        if (sides.size() == 1)
            continue;
        SCOPED_TRACE(line.toStdString());
        sides.resize(7);
        check(section, sides);
        --rows;
    }
    EXPECT_EQ(rows, 0) << "rows too few in " << path;
}

} // namespace tolvo::test
