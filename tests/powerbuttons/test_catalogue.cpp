// SPDX-License-Identifier: MIT
#include "base/failure.h"
#include "powerbuttons/catalogue.h"
#include "tests/powerbuttons/world.h"

#include <QBuffer>
#include <QTemporaryDir>
#include <array>

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
    struct Case {
        QByteArray text;
        QStringList entries;
        qsizetype panelLines;
    };
    const std::array cases{
        Case{"", {}, 0},
        Case{"#c\n  # c\n\n \t\r\n", {}, 0},
        Case{"aa;A;0;tip; with stop\r\n", {"aa|A|tip; with stop|0"}, 1},
        Case{"\xEF\xBB\xBF"
             "aa;A;1;tip",
             {"aa|A|tip|1"},
             1},
        Case{" aa ; A ; 3 ; tip ", {"aa|A| tip|1"}, 0},
        Case{"aa", {"aa|||0"}, 1},
        Case{"aa;R&&D;x;", {"aa|R&D||0"}, 1},
        Case{"aa;A;1e99;t\nbb;B;-1;t\ncc;C;2;t", {"aa|A|t|0", "bb|B|t|0", "cc|C|t|0"}, 2},
        Case{">;G;0;\n>;H;2;\n", {">|G||0", ">|H||0"}, 1},
    };
    for (const Case &row : cases) {
        const Catalogue catalogue = readText(row.text);
        EXPECT_EQ(listed(catalogue), row.entries) << row.text.toStdString();
        EXPECT_EQ(catalogue.panelItems().size(), row.panelLines) << row.text.toStdString();
    }
    EXPECT_EQ(readText(">;G;0;t").tool(">G")->Tooltip(), "t");
    EXPECT_EQ(readText("aa;A").tool("bb"), nullptr);
}

TEST(Catalogue, refusesInWords) {
    struct Case {
        QByteArray text;
        int number;
        const char *words;
    };
    const std::array cases{
        Case{"aa;A\n\nbb;B\naa;C", failureNumber::duplicateKey, "line 4: the token 'aa'"},
        Case{">;G\n>;G", failureNumber::duplicateKey, "line 2: the heading 'G'"},
        Case{"toolNULL;x", failureNumber::duplicateKey, "'toolNULL' is reserved"},
        Case{"aa;A\nbb;caf\xE9;0;", failureNumber::fileAccess, "line 2: the text is not UTF-8"},
        Case{QByteArray(40000, 'a') + ";A", failureNumber::overflow, "line 1:"},
    };
    for (const Case &row : cases) {
        try {
            static_cast<void>(readText(row.text));
            ADD_FAILURE() << "accepted: " << row.words;
        } catch (const Failure &failure) {
            EXPECT_EQ(failure.number(), row.number);
            EXPECT_TRUE(failure.description().contains(QLatin1StringView(row.words)))
                << failure.description().toStdString();
        }
    }
    const QTemporaryDir folder;
    try {
        static_cast<void>(Catalogue::read(folder.filePath("Tools.dat")));
        ADD_FAILURE() << "read a file that isn't there";
    } catch (const Failure &failure) {
        EXPECT_EQ(failure.number(), failureNumber::fileNotFound);
    }
}

TEST(ToolsDat, offersEveryToolOfTheProgram) {
    const QStringList tokens =
        QString("ccUPP ccLOW ccREV ccTIT ccINC ccSEN ccCAP edSTR edPLA edCRL edUDC edHDC edEOL edSRC "
                "edREP foTRA foTRM foSSP foIND foUNI foT2S foS2T foWRP foCOL foREM foPAR soALP soNUM "
                "soREV soNUP soNUD soKEY liBUL liNUM liREN liRMB liREM liRLN chPNC chSPE chGRA chSTAT "
                "pbPBT pbCLR pbALL pbTAG pbCPY pbCUT pbDEL pbPST")
            .split(u' ');
    const QStringList withDialog =
        QString("edSRC edREP foIND foUNI foWRP foCOL foREM liBUL liNUM liREN chSPE chGRA pbPBT").split(u' ');
    const Catalogue catalogue = Catalogue::read(realCatalogue());
    QStringList found;
    for (const ToolPtr &tool : catalogue.tools()) {
        EXPECT_FALSE(tool->Tooltip().isEmpty()) << tool->Name().toStdString();
        if (tool->isHeading() || tool->Token() == unknownToolToken)
            continue;
        found += tool->Token();
        EXPECT_EQ(tool->gotDialog(), withDialog.contains(tool->Token())) << tool->Token().toStdString();
    }
    found.sort();
    QStringList expected = tokens;
    expected.sort();
    EXPECT_EQ(found, expected);
}

TEST(ToolsDat, fitsIntoThePanel) {
    const Catalogue catalogue = Catalogue::read(realCatalogue());
    int groups = 0;
    int tools = 0;
    int mostTools = 0;
    for (const Catalogue::PanelItem &item : catalogue.panelItems()) {
        EXPECT_FALSE(item.token.startsWith(u"pb") || item.token == QLatin1StringView("foCOL"));
        tools = item.token == QLatin1StringView(">") ? 0 : tools + 1;
        groups += tools == 0 ? 1 : 0;
        mostTools = std::max(mostTools, tools);
    }
    EXPECT_LE(groups + mostTools, 18);
}

} // namespace
} // namespace tolvo
