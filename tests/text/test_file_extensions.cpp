// SPDX-License-Identifier: MIT
#include "text/file_extensions.h"

#include <QFile>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace tolvo {
namespace {

QString listFile() {
    return qEnvironmentVariable("TOLVO_SOURCE") + u"/data/FileExtensions.txt"_s;
}

TEST(FileExtensions, KnowsTheTypesOfADesktopAndNoWords) {
    const FileExtensions extensions(listFile());
    for (const QString &type : u"txt DOC docx pdf jpg mp3 mkv zip exe DLL ini cpp 7z"_s.split(u' '))
        EXPECT_TRUE(extensions.IsRegisteredExtension(type)) << type.toStdString();
    const QString words =
        u"a i it me so is as at be by do go he if in my no of on or to up us we am an pm all and "
        "any are but can day did dot end few fit for get had has her him his how its key let lit "
        "man map max may mid new not now old one our out own part raw see she sit sub tab tax the "
        "too two use was way who why you less note page sum text this swift pages numbers theme"_s;
    for (const QString &word : words.split(u' '))
        EXPECT_FALSE(extensions.IsRegisteredExtension(word)) << word.toStdString();
    EXPECT_FALSE(extensions.IsRegisteredExtension({}));
}

TEST(FileExtensions, ListIsSortedAndInLowerCase) {
    QFile file(listFile());
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    QByteArrayList lines = file.readAll().split('\n');
    lines.removeIf([](const QByteArray &line) { return line.isEmpty() || line.startsWith('#'); });
    EXPECT_GT(lines.size(), 300);
    for (qsizetype i = 1; i < lines.size(); ++i)
        EXPECT_TRUE(lines[i - 1] < lines[i] && lines[i] == lines[i].toLower()) << lines[i].constData();
}

TEST(FileExtensions, TheUsersListComesFirst) {
    FileExtensions extensions(listFile());
    extensions.setUserExtensions({u"it"_s, u"Xyz"_s});
    EXPECT_TRUE(extensions.IsRegisteredExtension(u"IT"_s));
    EXPECT_TRUE(extensions.IsRegisteredExtension(u"xyz"_s));
    EXPECT_FALSE(extensions.isSystemExtension(u"xyz"_s));
    extensions.setUserExtensions({});
    EXPECT_FALSE(extensions.IsRegisteredExtension(u"it"_s));
    EXPECT_FALSE(FileExtensions(u"/no/such/file"_s).IsRegisteredExtension(u"txt"_s));
}

} // namespace
} // namespace tolvo
