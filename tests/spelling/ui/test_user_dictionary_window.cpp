// SPDX-License-Identifier: MIT
#include "spelling/ui/UserDictionaryWindow.h"
#include "tests/spelling/spelling_world.h"
#include "tests/ui/user.h"

#include <QComboBox>
#include <QFileDialog>
#include <QLabel>
#include <QListWidget>

namespace tolvo::test {

class OwnWords : public SpellingWorld {
  public:
    OwnWords() {
        dictionary(u("de_AT"), "SET UTF-8\n", "1\nHaus\n");
        writeFile(dictionaries() + u("/persdict.dat"), "zqx\r\nabc\r\nkind\r\n");
    }
    void open(const char *locale, const std::function<void(QDialog &)> &story) {
        UserDictionaryWindow window(services, u(locale));
        withModal<QDialog>(story);
        window.exec();
    }
    static QString shown(QDialog &window) {
        QStringList words;
        const auto &list = child<QListWidget>(window, "lstWords");
        for (int row = 0; row < list.count(); ++row)
            words += list.item(row)->text();
        return words.join(u' ');
    }
    QByteArray british() const { return fileContents(dictionaries() + u("/persdict.dat")); }
    static QString said(QDialog &window) { return child<QLabel>(window, "labCount").text(); }
};

TEST_F(OwnWords, AreAddedAndRemovedByKeys) {
    open("en-gb", [&](QDialog &window) {
        auto &field = child<QLineEdit>(window, "txtWord");
        auto &list = child<QListWidget>(window, "lstWords");
        const auto &add = child<QAbstractButton>(window, "cmdAdd");
        EXPECT_EQ(shown(window), u("abc kind zqx"));
        EXPECT_TRUE(field.hasFocus());
        EXPECT_FALSE(add.isEnabled());
        QTest::keyClicks(&field, u("new"));
        QTest::keyClick(&field, Qt::Key_Return);
        EXPECT_EQ(shown(window), u("abc kind new zqx"));
        EXPECT_EQ(said(window), u("4 words: added new"));
        EXPECT_EQ(field.text(), QString());
        EXPECT_EQ(list.currentItem()->text(), u("new"));
        QTest::keyClicks(&field, u("ki"));
        EXPECT_TRUE(list.selectedItems().isEmpty()); // nothing to be removed by mistake
        for (const char *wrong : {"two words", " "}) {
            type(window, "txtWord", u(wrong));
            EXPECT_FALSE(add.isEnabled()) << wrong;
        }
        type(window, "txtWord", u("kind"));
        EXPECT_EQ(list.selectedItems().size(), 1);
        QTest::keyClick(&field, Qt::Key_Return);
        EXPECT_EQ(said(window), u("4 words: kind is there already"));
        EXPECT_EQ(list.currentItem()->text(), u("kind"));
        list.setFocus();
        QTest::keyClick(&list, Qt::Key_Delete);
        EXPECT_EQ(shown(window), u("abc new zqx"));
        QTest::keyClick(&field, Qt::Key_Return); // brings it back
        EXPECT_EQ(shown(window), u("abc kind new zqx"));

        boxes.answers = {BoxAnswer::No, BoxAnswer::Yes};
        list.selectAll();
        click(window, "cmdRemove");
        EXPECT_EQ(list.count(), 4);
        click(window, "cmdRemove");
        EXPECT_EQ(shown(window), QString());
        EXPECT_FALSE(child<QAbstractButton>(window, "cmdRemove").isEnabled());
        EXPECT_FALSE(child<QAbstractButton>(window, "cmdExport").isEnabled());
    });
    EXPECT_EQ(SpellingWorld::said(), QStringList(2, u("Do you really want to remove 4 words?")));
    EXPECT_EQ(british(), "");
}

TEST_F(OwnWords, GoFromListToList) {
    const QString file = folder.filePath(u("words.txt"));
    open("en-gb", [&](QDialog &window) {
        withModal<QFileDialog>([&](QFileDialog &files) {
            child<QLineEdit>(files, "fileNameEdit").setText(file);
            static_cast<QDialog &>(files).accept();
        });
        click(window, "cmdExport");
        EXPECT_EQ(fileContents(file), "abc\nkind\nzqx\n");
        auto &languages = child<QComboBox>(window, "cmbLanguage");
        languages.setCurrentIndex(1 - languages.currentIndex());
        EXPECT_EQ(shown(window), QString());
        type(window, "txtWord", u("kind"));
        click(window, "cmdAdd");
        withModal<QFileDialog>([&](QFileDialog &files) {
            child<QLineEdit>(files, "fileNameEdit").setText(file);
            static_cast<QDialog &>(files).accept();
        });
        click(window, "cmdImport");
        EXPECT_EQ(shown(window), u("abc kind zqx"));
        EXPECT_EQ(said(window), u("3 words: added 2, 1 known already"));
    });
    EXPECT_EQ(fileContents(dictionaries() + u("/persdict_de_at.dat")), "kind\r\nabc\r\nzqx\r\n");
    EXPECT_EQ(british(), "zqx\r\nabc\r\nkind\r\n");
}

} // namespace tolvo::test
