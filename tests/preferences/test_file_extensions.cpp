// SPDX-License-Identifier: MIT
#include "preferences/file_extensions.h"

#include <QFile>
#include <gtest/gtest.h>

namespace tolvo {
namespace {

QString listFile() {
    return qEnvironmentVariable("TOLVO_SOURCE") + u"/data/FileExtensions.txt"_qs;
}

TEST(FileExtensions, KnowsTheTypesOfADesktopAndNoWords) {
    const FileExtensions extensions(listFile());
    for (const char *type :
         {"txt", "DOC", "docx", "pdf", "jpg", "mp3", "mkv", "zip", "exe", "DLL", "ini", "cpp", "7z"})
        EXPECT_TRUE(extensions.IsRegisteredExtension(QString::fromLatin1(type))) << type;
    for (const char *word :
         {"",     "a",   "i",    "it",  "me",   "so",   "is",    "as",    "at",      "be",    "by",  "do",
          "go",   "he",  "if",   "in",  "my",   "no",   "of",    "on",    "or",      "to",    "up",  "us",
          "we",   "am",  "an",   "pm",  "all",  "and",  "any",   "are",   "but",     "can",   "day", "did",
          "dot",  "end", "few",  "fit", "for",  "get",  "go",    "had",   "has",     "her",   "him", "his",
          "how",  "its", "key",  "let", "lit",  "man",  "map",   "max",   "may",     "mid",   "new", "not",
          "now",  "old", "one",  "our", "out",  "own",  "part",  "raw",   "see",     "she",   "sit", "sub",
          "tab",  "tax", "the",  "too", "two",  "use",  "was",   "way",   "who",     "why",   "you", "less",
          "note", "old", "page", "sum", "text", "this", "swift", "pages", "numbers", "theme", "key"})
        EXPECT_FALSE(extensions.IsRegisteredExtension(QString::fromLatin1(word))) << word;
}

TEST(FileExtensions, ListIsSortedAndInLowerCase) {
    QFile file(listFile());
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    QByteArray before;
    int count = 0;
    while (!file.atEnd()) {
        const QByteArray line = file.readLine().trimmed();
        if (line.startsWith('#'))
            continue;
        EXPECT_LT(before, line);
        EXPECT_EQ(line, line.toLower());
        before = line;
        ++count;
    }
    EXPECT_GT(count, 300);
}

TEST(FileExtensions, TheUsersListComesFirst) {
    FileExtensions extensions(listFile());
    extensions.setUserExtensions({u"it"_qs, u"Xyz"_qs});
    EXPECT_TRUE(extensions.IsRegisteredExtension(u"IT"_qs));
    EXPECT_TRUE(extensions.IsRegisteredExtension(u"xyz"_qs));
    EXPECT_FALSE(extensions.isSystemExtension(u"xyz"_qs));
    extensions.setUserExtensions({});
    EXPECT_FALSE(extensions.IsRegisteredExtension(u"it"_qs));
    EXPECT_FALSE(FileExtensions(u"/no/such/file"_qs).IsRegisteredExtension(u"txt"_qs));
}

} // namespace
} // namespace tolvo
