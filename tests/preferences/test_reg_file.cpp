// SPDX-License-Identifier: MIT
// The registry editor's text format: what is written, what is taken, what is refused.
#include "preferences/reg_file.h"
#include "tests/support/examples.h"
#include "tests/support/failures.h"

using namespace Qt::StringLiterals;

namespace tolvo {
namespace {

QByteArray utf16(const QString &text) {
    return QByteArray(reinterpret_cast<const char *>(text.utf16()), text.size() * 2);
}

/// A file of version 5.00 with one key and these lines.
QByteArray withLines(const QByteArray &lines) {
    return "Windows Registry Editor Version 5.00\r\n\r\n[HKCU\\K]\r\n" + lines;
}

QList<RegValue> values(std::initializer_list<std::pair<QString, QString>> pairs) {
    QList<RegValue> list;
    for (const auto &[name, value] : pairs)
        list += RegValue{{name, value}};
    return list;
}

TEST(RegFile, WritesAsTheEditorDoes) {
    const QList<RegKey> keys = {
        {u"HKEY_CURRENT_USER"_s, u"S\\Button 1"_s, false,
         values({{{}, u"default"_s}, {u"quote \" \\"_s, u"C:\\x \"y\" •😀"_s}, {u"lines"_s, u"a\r\nb"_s}})},
        {u"HKEY_CURRENT_USER"_s, u"S\\gone"_s, true}};
    EXPECT_EQ(writeRegFile(keys), utf16(u"\uFEFFWindows Registry Editor Version 5.00\r\n\r\n"
                                        "[HKEY_CURRENT_USER\\S\\Button 1]\r\n"
                                        "@=\"default\"\r\n"
                                        "\"quote \\\" \\\\\"=\"C:\\\\x \\\"y\\\" •😀\"\r\n"
                                        "\"lines\"=hex(1):61,00,0d,00,0a,00,62,00,00,00\r\n\r\n"
                                        "[-HKEY_CURRENT_USER\\S\\gone]\r\n\r\n"_s));
    EXPECT_EQ(readRegFile(writeRegFile(keys)), keys);
}

TEST(RegFile, EveryTextComesBack) {
    QList<RegKey> keys = {{u"R"_s, u"K"_s, false,
                           values({{u"["_s, QString(1000, QChar(u'\t'))},
                                   {u"]"_s, QString(u'\0') + u"a"_s + QChar(u'\0')},
                                   {u"lone"_s, u"x"_s + QChar(0xDC00)},
                                   {u"\x7F"_s, u"\u0085\u2028; = , \\"_s},
                                   {u"empty"_s, QString()}})}};
    const QByteArray file = writeRegFile(keys);
    EXPECT_EQ(readRegFile(file), keys);
    for (const QByteArray &line : file.split('\n'))
        EXPECT_LE(line.size(), 2 * 81) << "hexadecimal lines are broken";
    keys.front().values.front().entry.name = u"line\nend"_s;
    expectFailure(failureNumber::invalidArgument, [&] { (void)writeRegFile(keys); });
}

TEST(RegFile, ReadsWhatOthersWrite) {
    const struct {
        const char *what;
        QByteArray file;
        QList<RegValue> expected;
    } cases[] = {{"version 4", "REGEDIT4\n\n[HKCU\\K]\n\"a\"=\"b\"\n", values({{u"a"_s, u"b"_s}})},
                 {"version 4 in Windows-1252",
                  "REGEDIT4\r\n[HKCU\\K]\r\n\"\xE4\"=\"\x95\"\r\n\"h\"=hex(1):95,00",
                  values({{u"ä"_s, u"•"_s}, {u"h"_s, u"•"_s}})},
                 {"UTF-8 with a mark", "\xEF\xBB\xBF" + withLines("\"ä\"=\"😀\""), values({{u"ä"_s, u"😀"_s}})},
                 {"UTF-16 BE",
                  [] {
                      QByteArray file = utf16(QChar(0xFEFF) + QString::fromUtf8(withLines("\"a\"=\"•\"")));
                      for (qsizetype i = 0; i + 1 < file.size(); i += 2)
                          std::swap(file[i], file[i + 1]);
                      return file;
                  }(),
                  values({{u"a"_s, u"•"_s}})},
                 {"comments and blanks", withLines("; [x]\r\n\t\"a\" = \"b\" ; c\r\n\r\n  ;\r\n@=\"d;e\""),
                  values({{u"a"_s, u"b"_s}, {{}, u"d;e"_s}})},
                 {"continuations",
                  withLines("\"a\"=hex(1):41,\\\r\n  00,42,\\  \r\n\t0,\\ ; why\r\n  "
                            "00,00\r\n\"b\"=hex(1):\r\n\"c\"=HEX(1):41,00"),
                  values({{u"a"_s, u"AB"_s}, {u"b"_s, {}}, {u"c"_s, u"A"_s}})},
                 {"escaped line ends", withLines(R"("a"="x\r\ny\\n")"), values({{u"a"_s, u"x\r\ny\\n"_s}})},
                 {"no last line end", withLines("\"a\"=\"b\""), values({{u"a"_s, u"b"_s}})}};
    for (const auto &[what, file, expected] : cases) {
        SCOPED_TRACE(what);
        const QList<RegKey> keys = readRegFile(file);
        ASSERT_EQ(keys.size(), 1);
        EXPECT_TRUE(keys.front().values == expected);
    }
    const QList<RegKey> keys =
        readRegFile(withLines("\"a\"=-\r\n@=-\r\n[-HKCU\\Gone]\r\n[HKCU\\a]b] ; c\r\n"));
    ASSERT_EQ(keys.size(), 3);
    EXPECT_TRUE(keys[0].values[0].deleted && keys[0].values[1].deleted);
    EXPECT_TRUE(keys[1].deleted);
    EXPECT_EQ(keys[2].path, u"a]b"_s);
}

TEST(RegFile, RefusesInWords) {
    const struct {
        QByteArray file;
        const char *says;
    } cases[] = {{"", "empty"},
                 {"\xFF\xFE", "Line 1"},
                 {"[HKCU\\K]\r\n", "Line 1: this is not a file of the registry editor"},
                 {"Windows Registry Editor Version 6.00\r\n", "Line 1"},
                 {utf16(QString::fromLatin1(withLines(""))), "without a byte order mark"},
                 {"\xFF\xFE" + utf16(QString::fromLatin1(withLines("\"a\"=\"b\""))).chopped(1),
                  "Line 4: the file is cut off"},
                 {withLines(QByteArray("\"a\"=\"b\0\"", 8)), "Line 4: a NUL"},
                 {"REGEDIT4\r\n\"a\"=\"b\"", "Line 2: a value before the first key"},
                 {withLines("\"\xC3\"=\"b\""), "Line 4: the file is neither UTF-16 nor UTF-8"}};
    const auto refuses = [](const QByteArray &file, const QString &reason) {
        expectFailure(
            failureNumber::invalidArgument, [&] { (void)readRegFile(file); }, reason);
    };
    for (const auto &row : cases)
        refuses(row.file, QString(row.says));
    test::forEachExample("/tests/preferences/reg_examples.txt", [&](const QString &, const QStringList &row) {
        refuses(withLines(row[0].toUtf8()), row[1]);
    });
}

} // namespace
} // namespace tolvo
