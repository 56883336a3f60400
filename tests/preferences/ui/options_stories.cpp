// SPDX-License-Identifier: MIT
// A user in the Options.
#include "platform/desktop/FontDialog.h"
#include "preferences/settings_keys.h"
#include "preferences/ui/ThirdPartiesWindow.h"
#include "preferences/ui/dlgPreferences.h"
#include "preferences/ui/frmAbout.h"
#include "tests/support/boxes.h"
#include "tests/support/recording_processes.h"
#include "tests/ui/user.h"

#include <QCheckBox>
#include <QDir>
#include <QDoubleSpinBox>
#include <QFileDialog>
#include <QFontComboBox>
#include <QFontInfo>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTemporaryDir>

using namespace tolvo;

namespace {

struct Actions : OptionsActions {
    void apply(const ProgramOptions &options) override { applied += options; }
    [[nodiscard]] bool isSystemExtension(const QString &extension) const override {
        return extension.compare(QLatin1StringView("txt"), Qt::CaseInsensitive) == 0;
    }
    void checkNow() override { done += QStringLiteral("check"); }
    void viewStatistics() override { done += QStringLiteral("view"); }
    void exportPrefs(const QString &, bool) override {}
    void importPrefs(const QString &) override {}
    void editOwnWords() override { done += QStringLiteral("own words"); }
    void configureProvider(int provider) override { done += QStringLiteral("provider %1").arg(provider); }

    QList<ProgramOptions> applied;
    QStringList done;
};

class OptionsStory : public testing::Test {
  protected:
    void open() { dialog.init(load(), lastCheckText({}, QDateTime::currentDateTime())); }
    ProgramOptions load() {
        ProgramOptions options = loadOptions(store);
        options.fonts = fonts;
        return options;
    }
    template <class Control>
    Control &control(const char *name) {
        return child<Control>(dialog, name);
    }
    void adds(const char *extension) {
        control<QLineEdit>("txtExt").clear();
        QTest::keyClicks(&control<QLineEdit>("txtExt"), QLatin1StringView(extension));
        control<QPushButton>("cmdAdd").click();
    }
    QStringList extensions() {
        QStringList rows;
        auto &list = control<QListWidget>("lstExtensions");
        for (int i = 0; i < list.count(); ++i)
            rows += list.item(i)->text();
        return rows;
    }

    const std::array<Font, 2> fonts{Font{QStringLiteral("Arial"), 8.25, false, false},
                                    Font{QStringLiteral("Courier New"), 10, true, true}};
    SettingsStore store{QStringLiteral(":memory:")};
    Actions actions;
    test::NamedBoxes boxes;
    dlgPreferences dialog{actions, boxes};
};

TEST_F(OptionsStory, extensionsAreAddedOnceAndInLowerCase) {
    open();
    adds(". X y Z"); // blanks and the stop are swallowed
    adds("xyz");
    adds("TXT");
    EXPECT_EQ(extensions(), QStringList{QStringLiteral("xyz")});
    EXPECT_EQ(boxes.said(), u"File extension 'xyz' is in the list already/"
                            "File extension 'TXT' is a registered file type on this PC.\r\n"
                            "You do not need to add it here");
    control<QLineEdit>("txtExt").setText(QStringLiteral("XY"));
    control<QPushButton>("cmdRemove").click();
    EXPECT_TRUE(extensions().isEmpty());
}

TEST_F(OptionsStory, enterPressesWhatHasTheFocus) {
    open();
    activate(dialog);
    auto &tabs = control<QTabWidget>("SSTab1");
    const auto enterOn = [&](int page, const char *name) {
        tabs.setCurrentIndex(page);
        control<QWidget>(name).setFocus();
        QTest::keyClick(&control<QWidget>(name), Qt::Key_Return);
        EXPECT_TRUE(dialog.isVisible()) << name;
    };
    enterOn(2, "cmdCheckNow");
    enterOn(2, "cmdViewStats");
    enterOn(3, "imgBrowse_2");
    EXPECT_EQ(actions.done.join(u' '), QStringLiteral("check view provider 2"));
    auto &extension = control<QLineEdit>("txtExt");
    extension.setText(QStringLiteral("abc"));
    enterOn(1, "txtExt");
    enterOn(1, "txtExt"); // nothing to add
    EXPECT_EQ(extensions(), QStringList{QStringLiteral("abc")});
    QTest::keyClicks(&extension, QStringLiteral("qrs"));
    extension.setCursorPosition(1);
    QTest::keyClicks(&extension, QStringLiteral(" ."));
    EXPECT_EQ(extension.cursorPosition(), 1);
    extension.insert(QStringLiteral(".x y")); // as pasting does
    EXPECT_EQ(extension.text(), QStringLiteral("qxyrs"));
    EXPECT_EQ(extension.cursorPosition(), 3);
    extension.selectAll();
    QTest::keyClick(&extension, Qt::Key_Space);
    EXPECT_EQ(extension.text(), QStringLiteral("qxyrs"));
    dialog.showSpellingPage();
    EXPECT_TRUE(control<QRadioButton>("optSpellingProvider_1").hasFocus());
    EXPECT_TRUE(actions.applied.isEmpty());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return); // OK
    EXPECT_EQ(actions.applied.size(), 1);
    EXPECT_FALSE(dialog.isVisible());
}

TEST_F(OptionsStory, aFontThatIsNotInstalledKeepsItsName) {
    ProgramOptions missing = load();
    missing.fonts[0] = {QStringLiteral("No Such Font"), 8.25, false, true};
    dialog.init(missing, {});
    activate(dialog);
    const QString standIn = QFontInfo(QFont(missing.fonts[0].name)).family();
    withModal<FontDialog>([&](FontDialog &shown) {
        EXPECT_EQ(child<QFontComboBox>(shown, "cmbFamily").currentFont().family(), standIn);
        EXPECT_TRUE(child<QLabel>(shown, "labStandIn").text().contains(standIn));
        EXPECT_EQ(child<QDoubleSpinBox>(shown, "txtSize").text(), QStringLiteral("8.25"));
        child<QDoubleSpinBox>(shown, "txtSize").setValue(11);
        click(shown, "chkBold");
        click(shown, "OKButton");
    });
    control<QAbstractButton>("Image1_0").click();
    EXPECT_EQ(dialog.options().fonts[0], (Font{missing.fonts[0].name, 11, true, true}));
    EXPECT_EQ(control<QLineEdit>("txtFont_0").text(), QStringLiteral("No Such Font Bold Italic 11 pt"));
    QString other;
    withModal<FontDialog>([&](FontDialog &shown) {
        auto &families = child<QFontComboBox>(shown, "cmbFamily");
        families.setCurrentIndex(families.currentIndex() == 0 ? 1 : 0);
        other = families.currentFont().family();
        click(shown, "OKButton");
    });
    control<QAbstractButton>("Image1_0").click();
    EXPECT_NE(other, standIn);
    EXPECT_EQ(dialog.options().fonts[0].name, other);
    withModal<FontDialog>([](FontDialog &shown) { shown.reject(); });
    control<QAbstractButton>("Image1_1").click();
    EXPECT_EQ(dialog.options().fonts[1], fonts[1]);
}

TEST_F(OptionsStory, whatIsAppliedComesBackWithTheNextOpening) {
    open();
    control<QCheckBox>("chkSounds").setChecked(false);
    control<QCheckBox>("chkTroubles").setChecked(false);
    for (const char *name : {"chkSkipDigits", "chkSkipAddresses", "chkCurlyApostrophe"}) {
        EXPECT_FALSE(control<QCheckBox>(name).isChecked()) << name;
        control<QCheckBox>(name).setChecked(true);
    }
    control<QRadioButton>("optTLDs_0").setChecked(true);
    control<QRadioButton>("optSpellingProvider_2").setChecked(true);
    control<QRadioButton>("optProp_1").setChecked(true);
    for (int i = 0; i < 27; ++i)
        adds(qPrintable(QStringLiteral("ext") + (i > 25 ? QStringLiteral("az") : QString(QChar(u'a' + i)))));
    control<QPushButton>("cmdApply").click();
    ASSERT_EQ(actions.applied.size(), 1);
    saveOptions(store, actions.applied[0]);
    EXPECT_EQ(textOf(store, settingKeys.preferences.sounds), QStringLiteral("0"));
    EXPECT_EQ(textOf(store, settingKeys.hints.troubles), QStringLiteral("0"));
    EXPECT_EQ(textOf(store, settingKeys.typedText.skipAddresses), QStringLiteral("1"));
    EXPECT_EQ(textOf(store, settingKeys.typedText.skipCapitals), QStringLiteral("0"));
    EXPECT_EQ(store.GetSetting(QStringLiteral("Tolvo"), QStringLiteral("Preferences\\UserFileExtensions"),
                               QStringLiteral("{")),
              QStringLiteral("extaz"));
    ProgramOptions again = load();
    again.useProportional = false;
    EXPECT_EQ(again, actions.applied[0]);
    again.extensions = {QStringLiteral("TXT"), QStringLiteral("mine")};
    dialog.init(again, {});
    EXPECT_EQ(extensions(), QStringList{QStringLiteral("mine")}) << "the system knows the other one";
}

TEST_F(OptionsStory, openOnAnyStore) {
    set(store, settingKeys.spelling.provider, 7);
    open();
    for (const char *name :
         {"chkShowTips", "chkTroubles", "chkSounds", "chkUpdates", "chkUsageStats", "optTLDs_1"})
        EXPECT_TRUE(control<QAbstractButton>(name).isChecked()) << name;
    EXPECT_EQ(control<QLineEdit>("txtFont_1").text(), QStringLiteral("Courier New Bold Italic 10 pt"));
    EXPECT_FALSE(control<QPushButton>("cmdAdd").isEnabled());
    EXPECT_EQ(dialog.options().provider, 7) << "one outside the list is kept";

    store.SaveSetting(QStringLiteral("Tolvo"), QStringLiteral("Preferences"), QStringLiteral("Sounds"),
                      QStringLiteral("yes"));
    store.SaveSetting(QStringLiteral("Tolvo"), QStringLiteral("Spelling"), QStringLiteral("Provider"),
                      QStringLiteral("none"));
    open();
    EXPECT_FALSE(control<QCheckBox>("chkSounds").isChecked());
    EXPECT_TRUE(control<QRadioButton>("optSpellingProvider_1").isChecked());
    EXPECT_EQ(control<QLabel>("labLastCheck").text(), QStringLiteral("You have never checked for updates"));
}

TEST_F(OptionsStory, theExportProposesAFolderThatIsThere) {
#ifdef Q_OS_WIN
    GTEST_SKIP() << "there the system names the user's folders, not HOME";
#endif
    const QTemporaryDir home;
    const QByteArray before = qgetenv("HOME");
    qputenv("HOME", home.path().toLocal8Bit());
    for (const bool documents : {false, true}) {
        if (documents)
            QDir(home.path()).mkdir(QStringLiteral("Documents"));
        open();
        withModal<QFileDialog>([&](QFileDialog &files) {
            EXPECT_EQ(files.directory().path(),
                      home.path() + QLatin1StringView(documents ? "/Documents" : ""));
            EXPECT_EQ(child<QLineEdit>(files, "fileNameEdit").text(), QString());
        });
        control<QPushButton>("cmdExport").click();
    }
    qputenv("HOME", before);
}

TEST(Options, sayTheLastCheckInWholeDays) {
    const QDateTime now(QDate(2026, 3, 10), QTime(11, 59));
    EXPECT_EQ(lastCheckText(QStringLiteral("2026-03-01 12:00:00"), now),
              QStringLiteral("You last checked for updates 8 days ago"));
    EXPECT_EQ(lastCheckText(QStringLiteral("yesterday"), now), lastCheckText({}, now));
}

TEST(About, showsVersionAndDateAndOpensTheAddress) {
    test::RecordingProcesses processes;
    test::NamedBoxes boxes;
    frmAbout about(processes, boxes, QDate(2026, 5, 4));
    EXPECT_TRUE(child<QLabel>(about, "lblVersion").text().startsWith(u"Version 1.0 Build 0 ("));
    EXPECT_TRUE(child<QLabel>(about, "lblCopyright").text().contains(u"2026"));
    emit child<QLabel>(about, "lblWeb").linkActivated(QStringLiteral("https://tolvo.example"));
    about.offerManual(QStringLiteral("/a blank/index.html"));
    auto &manual = child<QLabel>(about, "lblManual");
    emit manual.linkActivated(manual.text().section(u'"', 1, 1)); // the address that it shows
    withModal<ThirdPartiesWindow>([](ThirdPartiesWindow &parties) {
        emit child<QLabel>(parties, "lblSQLite").linkActivated(QStringLiteral("https://www.sqlite.org"));
        parties.reject();
    });
    auto &parties = child<QWidget>(about, "lblThirdParties");
    QTest::keyClick(&parties, Qt::Key_Return);
    EXPECT_EQ(processes.opened, QStringList({QStringLiteral("https://tolvo.example"),
                                             QStringLiteral("file:///a%20blank/index.html"),
                                             QStringLiteral("https://www.sqlite.org")}));
}

} // namespace
