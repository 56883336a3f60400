// SPDX-License-Identifier: MIT
// Adding a language and taking it away again, as a user does it.
#include "spelling/ui/dlgDicQuickList.h"
#include "spelling/ui/dlgHunspellLanguage.h"
#include "tests/spelling/spelling_world.h"
#include "tests/ui/user.h"

#include <QComboBox>
#include <QLabel>
#include <QTreeWidget>

namespace tolvo::test {

class LanguageWindows : public SpellingWorld {
  public:
    LanguageWindows() {
        QDir().mkpath(downloads);
        qputenv("HOME", folder.path().toLocal8Bit());
        qputenv("XDG_CONFIG_HOME", folder.path().toLocal8Bit());
        writeFile(downloads + u("/de_AT.aff"), "SET UTF-8\n");
        writeFile(downloads + u("/de_AT.dic"), "1\nHaus\n");
        writeFile(downloads + u("/broken.oxt"), "hello");
    }
    ~LanguageWindows() override {
        home.isNull() ? qunsetenv("HOME") : qputenv("HOME", home);
        config.isNull() ? qunsetenv("XDG_CONFIG_HOME") : qputenv("XDG_CONFIG_HOME", config);
    }

    static QStringList rowsOf(QWidget &window, const char *list) {
        QStringList rows;
        auto &tree = child<QTreeWidget>(window, list);
        for (int row = 0; row < tree.topLevelItemCount(); ++row)
            rows += tree.topLevelItem(row)->text(0) + u(": ") + tree.topLevelItem(row)->text(1);
        return rows;
    }

    const QByteArray home = qgetenv("HOME");
    const QByteArray config = qgetenv("XDG_CONFIG_HOME");
    const QString downloads = folder.path() + u("/Downloads");
};

TEST_F(LanguageWindows, AddAndRemoveALanguage) {
#ifdef Q_OS_WIN
    GTEST_SKIP() << "there the system names the user's folders, not HOME";
#endif
    withModal<QDialog>([this](QDialog &window) {
        auto &list = child<QTreeWidget>(window, "lvwHunspellLangs");
        EXPECT_EQ(list.topLevelItem(0)->text(3), u("With Tolvo"));
        EXPECT_FALSE(child<QAbstractButton>(window, "cmdRemove").isEnabled());
        withModal<QDialog>([this](QDialog &add) {
            EXPECT_EQ(rowsOf(add, "lvwDictionaries"),
                      QStringList({u("broken.oxt: Can be added"), u("Deutsch (Österreich): Can be added"),
                                   u("English (United Kingdom): Ready")}));
            auto &offers = child<QTreeWidget>(add, "lvwDictionaries");
            EXPECT_EQ(add.focusWidget(), &offers);
            click(add, "cmdAdd");
            EXPECT_EQ(said(), QStringList(u("This dictionary was not added.\r\n"
                                            "broken.oxt is not a zip file, or is damaged.")));
            QTest::keyClick(&offers, Qt::Key_End);
            EXPECT_FALSE(child<QAbstractButton>(add, "cmdAdd").isEnabled());
            QTest::keyClick(&offers, Qt::Key_Up);
            QTest::keyClick(&offers, Qt::Key_Return);
            EXPECT_FALSE(add.isVisible());
        });
        click(window, "cmdAddLanguage");
        EXPECT_EQ(list.currentItem()->text(1), u("Deutsch (Österreich)"));
        EXPECT_EQ(list.currentItem()->text(3), u("Added by you"));

        click(window, "cmdRemove");
        EXPECT_EQ(list.topLevelItemCount(), 2) << "the answer is No";
        boxes.answers = {BoxAnswer::Yes};
        click(window, "cmdRemove");
        EXPECT_EQ(said(),
                  QStringList(2, u("Remove the dictionary of Deutsch (Österreich) from this computer?")));
        EXPECT_EQ(rowsOf(window, "lvwHunspellLangs"), QStringList(u("en-gb: English (UK)")));
        click(window, "cmdOK");
    });
    dlgHunspellLanguage(services).exec();
    EXPECT_TRUE(QFile::exists(downloads + u("/de_AT.dic")));
}

TEST_F(LanguageWindows, SayWhereTheDictionaryLies) {
    services.systemDictionaries = {downloads};
    QFile::copy(qEnvironmentVariable("TOLVO_SOURCE") + u("/data/Locales.txt"),
                services.dataFolder + u("/Locales.txt"));
    dlgDicQuickList dialogList(services);
    withModal<QDialog>([this](QDialog &window) {
        auto &list = child<QComboBox>(window, "cmbQuickList");
        auto &place = child<QLabel>(window, "labPlace");
        EXPECT_EQ(list.currentText(), u("English (GB) - en-gb"));
        EXPECT_EQ(place.text(), u("With Tolvo"));
        QTest::keyClick(&list, Qt::Key_Down);
        EXPECT_EQ(list.currentText(), u("Deutsch (Österreich) - de-at"));
        EXPECT_EQ(place.text(), QDir::toNativeSeparators(downloads));
        EXPECT_EQ(list.accessibleDescription(), place.text());
        click(window, "OKButton");
    });
    EXPECT_EQ(dialogList.GetLangID(-2, true), 3079);
}

TEST_F(LanguageWindows, PutTheLanguageOfTheTextFirst) {
    QFile::copy(qEnvironmentVariable("TOLVO_SOURCE") + u("/data/Locales.txt"),
                services.dataFolder + u("/Locales.txt"));
    dictionary(u("de_AT"), "SET UTF-8\n", "6\nder\nHund\nist\nein\nTier\nhier\n");
    dictionary(u("bg_BG"), "SET UTF-8\n", "1\nx\n");
    dlgDicQuickList dialogList(services, nullptr, BackgroundWorker::Thread::None);
    QString text = u("der Hund ist hier der Hund ist ein Tier");
    dialogList.setText([&text] { return text; });
    const auto shown = [&](int LangID, bool save = true) {
        QString state;
        withModal<QDialog>([&state](QDialog &window) {
            auto &list = child<QComboBox>(window, "cmbQuickList");
            auto &guess = child<QLabel>(window, "labGuess");
            state = list.itemText(0) + u(" | ") + list.currentText() + u(" | ") +
                    child<QLabel>(window, "labPlace").text() + u(" | ") +
                    (guess.isVisible() ? guess.text() : QString());
            click(window, "CancelButton");
        });
        (void)dialogList.GetLangID(LangID, save);
        return state;
    };
    const QString german = u("Deutsch (Österreich) - de-at | ");
    const QString english = u("English (GB) - en-gb | ");
    const QString with = u("With Tolvo | ");
    // What is selected stays.
    EXPECT_EQ(shown(-1), german + english + with +
                             u("The text looks like Deutsch (Österreich), the first of the list."));
    EXPECT_EQ(shown(3079), german + german + with);
    EXPECT_EQ(shown(2057, false), english + english + with); // not for a check of this text
    text = u("x");
    EXPECT_EQ(shown(-1), english + english + with);
}

} // namespace tolvo::test
