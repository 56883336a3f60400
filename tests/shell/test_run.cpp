// SPDX-License-Identifier: MIT
// Whole runs, from the start to the end, with a scripted window.
#include "base/conversions.h"
#include "base/paths.h"
#include "shell/modMain.h"
#include "tests/support/User.h"
#include "tests/support/recording_processes.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

using namespace tolvo;
using namespace tolvo::test;

namespace {

struct FixedClock final : Clock {
    QDateTime now() const override { return present; }
    QDateTime present = toDate("2030-05-01 12:00:00");
};

/// One machine on which runs take place one after another.
class Runs : public ::testing::Test {
  protected:
    Runs() { QFile::copy(dataFolder() + "/Tools.dat", folder.filePath("Tools.dat")); }

    class Window final : public SessionWindow, private HeadlessWindows {
      public:
        explicit Window(Runs &machine) : m_machine(machine) {}
        TextBox &txtText1() override { return m_text1; }
        TextBox &txtTextWW() override { return m_textWW; }
        SessionView &view() override { return *this; }
        SessionDialogs &dialogs() override { return *this; }
        void attach(frmMain &session, cToolbox &toolbox) override {
            m_session = &session;
            m_toolbox = &toolbox;
            m_machine.log += "attach";
        }
        void powerButtonChanged(int index) override {
            if (index + 1 == CPowerButtonCollection::buttonCount)
                m_machine.log += QString("icons of \"%1\"").arg(m_session->txtCurrent().Text());
        }
        bool takesClipboardLater() override { return m_machine.clipboardLater; }
        void showModal(const std::function<void()> &onceShown) override {
            m_machine.log += m_machine.processes.heldBack ? "show, tips held back" : "show";
            onceShown();
            EXPECT_FALSE(m_machine.processes.heldBack);
            m_machine.during(*m_session, *m_toolbox);
        }
        void unloadForms() override { m_machine.log += "unload"; }

      private:
        Runs &m_machine;
        MemoryTextBox m_text1;
        MemoryTextBox m_textWW;
        frmMain *m_session = nullptr;
        cToolbox *m_toolbox = nullptr;
    };

    int run(std::function<void(frmMain &, cToolbox &)> script = [](frmMain &, cToolbox &) {}) {
        during = std::move(script);
        log.clear();
        processes.started.clear();
        const SpellingServices spelling{store, boxes, network, word, folder.path(), folder.path(), {}};
        modMain main({store, clipboard, boxes, sound, processes, clock, extensions, folder.path(),
                      folder.path(), spelling},
                     [this] { return std::make_unique<Window>(*this); });
        return main.Main();
    }

    void prefers(const char *key, const char *value) {
        store.SaveSetting("Tolvo", "Preferences", QLatin1StringView(key), QLatin1StringView(value));
    }
    QString usage(const char *key) {
        return store.GetSetting("Tolvo-Stats", "Usage", QLatin1StringView(key));
    }
    QStringList startedPrograms() const {
        QStringList names;
        for (const auto &start : processes.started)
            names += (QStringList(QFileInfo(start.program).fileName()) + start.arguments).join(u' ');
        return names;
    }

  public:
    QTemporaryDir folder;
    SettingsStore store{":memory:"};
    MemoryClipboard clipboard{"text"};
    NamedBoxes boxes;
    SilentSound sound;
    test::RecordingProcesses processes;
    FixedClock clock;
    FileExtensions extensions;
    NoNetwork network;
    NoWordAutomation word;
    std::function<void(frmMain &, cToolbox &)> during;
    QStringList log;
    bool clipboardLater = false;
};

const QString refresher = "Refresher.exe /update /stats /quiet";

TEST_F(Runs, theFirstOfAll) {
    EXPECT_EQ(run([&](frmMain &session, cToolbox &toolbox) {
                  EXPECT_EQ(pictureOf(session.txtCurrent()), "«»text");
                  EXPECT_FALSE(session.bDirty());
                  EXPECT_TRUE(session.bSounds);
                  EXPECT_EQ(session.currentFont().name, "Arial");
                  EXPECT_EQ(session.aFonts.at(1), (Font{"Courier New", 10}));
                  toolbox.Layout(1);
                  EXPECT_EQ(sound.waves, QStringList(sAppPath(folder.path()) + "scrbar.wav"));
                  session.ToolDespatcher("ccUPP");
                  session.cmdUndo_Click(); // the clipboard's text is the bottom state
                  EXPECT_EQ(session.txtCurrent().Text(), "text");
                  session.cmdUndo_Click();
                  EXPECT_EQ(session.labStatus(), "Reached end of Undo buffer");
              }),
              0);
    EXPECT_EQ(log.join(u'|'), "attach|icons of \"text\"|show, tips held back|unload");
    EXPECT_EQ(startedPrograms(), QStringList("Advisor.exe"));
    EXPECT_EQ(processes.started.first().mode, WindowMode::NormalWithoutFocus);
    EXPECT_EQ(usage("StartDate"), "2030-05-01 12:00:00");
    EXPECT_EQ(usage("Count"), "1");
}

TEST_F(Runs, afterAWeekTheUpdateCompanionFollows) {
    prefers("Show Tips at Startup", "0");
    run();
    clock.present = clock.present.addDays(7);
    run();
    EXPECT_TRUE(startedPrograms().isEmpty()); // exactly seven days are not over yet
    clock.present = clock.present.addSecs(1);
    run();
    EXPECT_EQ(startedPrograms(), QStringList(refresher));
    EXPECT_EQ(usage("Count"), "3");
    prefers("AllowStats", "0");
    run();
    EXPECT_TRUE(startedPrograms().isEmpty());
}

TEST_F(Runs, takePreferencesAndKeepToolSettings) {
    for (const auto &[key, value] : {std::pair{"Wordwrap", "1"},
                                     {"Sounds", "no number"},
                                     {"FontUseProp", "0"},
                                     {"Fixed_FontName", "Mono"},
                                     {"Fixed_FontBold", "True"},
                                     {"Fixed_FontSize", "12pt"},
                                     {"TLD_Full", "true"}})
        prefers(key, value);
    run([](frmMain &session, cToolbox &) {
        EXPECT_TRUE(session.bWordWrap);
        EXPECT_FALSE(session.bSounds);
        EXPECT_EQ(session.currentFont(), (Font{"Mono", 12, true}));
        EXPECT_TRUE(session.oTextMethods.topLevelDomains().contains(",museum,"));
        session.toolSettings().get<WordWrapSettings>().width = 33;
    });
    EXPECT_EQ(store.GetSetting("Tolvo", "Wordwrap", "Width"), "33");
}

TEST_F(Runs, endAfterAFailureAtTheStart) {
    const std::function<void()> faults[] = {[&] { processes.missing = true; },
                                            [&] { QFile::remove(folder.filePath("Tools.dat")); }};
    for (const auto &fault : faults) {
        fault();
        EXPECT_EQ(run(), 1);
        EXPECT_TRUE(boxes.takeOldest().endsWith("in modMain::Main"));
        EXPECT_FALSE(log.contains("show"));
    }
}

TEST_F(Runs, aStartDateThatCannotBeReadIsAFailureOfTheEnd) {
    store.SaveSetting("Tolvo-Stats", "Usage", "StartDate", "yesterday");
    EXPECT_EQ(run(), 1);
    EXPECT_EQ(log.last(), "show, tips held back");
    EXPECT_TRUE(boxes.takeOldest().contains("(error 13)"));
}

TEST_F(Runs, aMissingUpdateCompanionIsReportedAndTheRunGoesOn) {
    prefers("Show Tips at Startup", "0");
    run();
    clock.present = clock.present.addDays(8);
    processes.missing = true;
    EXPECT_EQ(run(), 0);
    EXPECT_EQ(log.last(), "unload");
    EXPECT_TRUE(boxes.takeOldest().endsWith("in Gen_Procs::runCheckForUpdates"));
}

TEST_F(Runs, theClipboardMayComeAfterTheWindow) {
    clipboardLater = true;
    run([&](frmMain &session, cToolbox &) {
        EXPECT_EQ(log.join(u'|'), "attach|icons of \"\"|show, tips held back");
        EXPECT_EQ(session.txtCurrent().Text(), "text");
        EXPECT_FALSE(session.bDirty());
    });
}

} // namespace
