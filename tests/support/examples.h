// SPDX-License-Identifier: MIT
// Files of examples, so that a new case is a row and no code.
#pragma once

#include <QFile>
#include <QJsonDocument>
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

/// The texts of a list as JSON writes it, for texts with control characters: ["a\b", "c"].
[[nodiscard]] inline QStringList listOf(const QString &json) {
    return QJsonDocument::fromJson(json.toUtf8()).toVariant().toStringList();
}

/// Calls with the name of the section, as in "[Sort]", and the sides of each row, "before→after"; a side that
/// is not there is empty. Blank lines and lines that begin with "#" and have no arrow are comments.
template <class Check>
void forEachExample(const char *path, Check check) {
    QFile file(qEnvironmentVariable("TOLVO_SOURCE") + QLatin1StringView(path));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << path;
    QString section;
    for (const QString &line : QString::fromUtf8(file.readAll()).split(u'\n')) {
        SCOPED_TRACE(line.toStdString());
        QStringList sides = withoutSigns(line).split(u'→');
        if (sides.size() > 1) {
            sides.resize(7);
            check(section, sides);
        } else if (line.startsWith(u'[') && line.endsWith(u']')) {
            section = line.sliced(1).chopped(1);
        } else {
            EXPECT_TRUE(line.isEmpty() || line.startsWith(u'#')) << "neither a row nor a comment";
        }
    }
    EXPECT_FALSE(section.isEmpty()) << "no examples in " << path;
}

} // namespace tolvo::test
