// SPDX-License-Identifier: MIT
#include "powerbuttons/catalogue.h"
#include "tests/powerbuttons/world.h"
#include "tests/support/failures.h"

#include <QBuffer>
#include <QDir>

namespace tolvo {
namespace {

Catalogue readText(const QByteArray &text) {
    QBuffer file;
    file.setData(text);
    file.open(QIODevice::ReadOnly);
    return Catalogue::read(file);
}

/// "token|name|tooltip|dialog" of each entry but the last, which stands for unknown tools.
QStringList listed(const Catalogue &catalogue) {
    QStringList list;
    for (const ToolPtr &tool : catalogue.tools())
        list +=
            QString("%1|%2|%3|%4").arg(tool->Token(), tool->Name(), tool->Tooltip()).arg(tool->gotDialog());
    EXPECT_EQ(list.takeLast(), "toolNULL|NULL|Deleted tool|0");
    return list;
}

TEST(Catalogue, readsLines) {
    const std::tuple<QByteArray, QStringList, qsizetype> cases[] = {
        {"", {}, 0},
        {"#c\n  # c\n\n \t\r\n", {}, 0},
        {"aa;A;0;tip; with stop\r\n", {"aa|A|tip; with stop|0"}, 1},
        {"\xEF\xBB\xBF"
         "aa;A;1;tip",
         {"aa|A|tip|1"},
         1},
        {" aa ; A ; 3 ; tip ", {"aa|A| tip|1"}, 0},
        {"aa", {"aa|||0"}, 1},
        {"aa;R&&D;x;", {"aa|R&D||0"}, 1},
        {"aa;A;1e99;t\nbb;B;-1;t\ncc;C;2;t", {"aa|A|t|0", "bb|B|t|0", "cc|C|t|0"}, 2},
        {">;G;0;\n>;H;2;\n", {">|G||0", ">|H||0"}, 1},
    };
    for (const auto &[text, entries, panelLines] : cases) {
        const Catalogue catalogue = readText(text);
        EXPECT_EQ(listed(catalogue), entries) << text.toStdString();
        EXPECT_EQ(catalogue.panelItems().size(), panelLines) << text.toStdString();
    }
    EXPECT_EQ(readText(">;G;0;t").tool(">G")->Tooltip(), "t");
    EXPECT_EQ(readText("aa;A").tool("bb"), nullptr);
}

TEST(Catalogue, refusesInWords) {
    const std::tuple<QByteArray, int, const char *> cases[] = {
        {"aa;A\n\nbb;B\naa;C", failureNumber::duplicateKey, "line 4: the token 'aa'"},
        {">;G\n>;G", failureNumber::duplicateKey, "line 2: the heading 'G'"},
        {"toolNULL;x", failureNumber::duplicateKey, "'toolNULL' is reserved"},
        {"aa;A\nbb;caf\xE9;0;", failureNumber::fileAccess, "line 2: the text is not UTF-8"},
        {QByteArray(40000, 'a') + ";A", failureNumber::overflow, "line 1:"},
    };
    for (const auto &row : cases)
        expectFailure(
            std::get<int>(row), [&] { (void)readText(std::get<QByteArray>(row)); },
            std::get<const char *>(row));
    const QString missing = "/nowhere/Tools.dat";
    expectFailure(
        failureNumber::fileNotFound, [&] { (void)Catalogue::read(missing); },
        QDir::toNativeSeparators(missing));
}

} // namespace
} // namespace tolvo
