// SPDX-License-Identifier: MIT
// The run from its start to its end. The order of the steps is design: the text box must exist before the
// panel is filled, the fonts must be read before anything shows them, and the bottom state of undo is the
// clipboard's text.
#include "base/application.h"
#include "base/conversions.h"
#include "base/numbers.h"
#include "base/paths.h"
#include "platform/check_for_updates.h"
#include "platform/report_error.h"
#include "preferences/settings_table.h"
#include "shell/modMain.h"

namespace tolvo {

namespace {

constexpr int daysWithoutReport = 7; ///< after the first start, or after the companion's last report

} // namespace

modMain::modMain(const RunServices &services, SessionWindowFactory makeWindow)
    : oPBMethods(services.store, oTools, services.boxes), oSound(services.sound), m_services(services),
      m_makeWindow(std::move(makeWindow)) {
}

modMain::~modMain() = default;

int modMain::Main() {
    const bool complete =
        reportFailures(m_services.boxes, QStringLiteral("modMain"), QStringLiteral("Main"), [this] {
            start();
            m_window->showModal([this] { windowShown(); });
            finish();
        });
    return complete ? 0 : 1;
}

void modMain::start() {
    prepareSpelling(m_services.spelling);
    createSession();
    oTools = Catalogue::read(sAppPath(m_services.programFolder) + QStringLiteral("Tools.dat"));
    oToolbox.init(oTools.panelItems());
    loadPowerButtons();
    showTips();
    readFonts();
    m_session->readTextPreferences();
    m_session->bSounds = preferenceIsOne(u"Sounds");
    countStart();
    m_clipboardLater = m_window->takesClipboardLater();
    if (!m_clipboardLater)
        m_session->takeClipboard();
    m_window->initIcons();
    if (!m_clipboardLater)
        m_session->beginWithText();
    showTroubleOfStore();
}

void modMain::windowShown() {
    if (m_clipboardLater)
        m_session->guarded(u"beginWithClipboard", [this] { m_session->beginWithClipboard(); });
    m_services.processes.letGo();
}

void modMain::createSession() {
    const bool wrapped = preferenceIsOne(u"Wordwrap");
    m_window = m_makeWindow();
    m_session =
        std::make_unique<frmMain>(SessionServices{.store = m_services.store,
                                                  .clipboard = m_services.clipboard,
                                                  .boxes = m_services.boxes,
                                                  .sound = m_services.sound,
                                                  .clock = m_services.clock,
                                                  .extensions = m_services.extensions,
                                                  .oTools = oTools,
                                                  .oPowerButtons = oPowerButtons,
                                                  .windows = m_window->windows(),
                                                  .view = m_window->view(),
                                                  .spelling = m_services.spelling,
                                                  .spellingWalk = m_window->spellingWalk(),
                                                  .languages = m_window->languages()},
                                  m_window->txtText1(), m_window->txtTextWW(), m_window->searchResults());
    m_window->attach(*m_session, oToolbox);
    oToolbox.setSound([this] {
        if (m_session->bSounds)
            oSound.PlayWav(sAppPath(m_services.programFolder) + QStringLiteral("scrbar.wav"),
                           cSound::playOnce);
    });
    m_session->useTextBox(wrapped);
}

void modMain::loadPowerButtons() {
    for (int number = 1; number <= CPowerButtonCollection::buttonCount; ++number) {
        const auto button = std::make_shared<CPowerButton>();
        oPowerButtons.Add(button, number);
        oPBMethods.ReadPBSettings(*button, number);
    }
}

void modMain::showTips() {
    if (preferenceIsOne(u"Show Tips at Startup"))
        // It stands beside the window and over nothing: what the start has to say comes first.
        m_services.processes.start(
            {.program = sAppPath(m_services.programFolder) + QStringLiteral("Advisor.exe"),
             .mode = WindowMode::NormalWithoutFocus,
             .heldBack = true});
}

void modMain::readFonts() {
    const auto read = [this](const QString &prefix, const Font &fallback) {
        const auto value = [&](const char *key, const QString &otherwise) {
            return GetPreference(m_services.store, prefix + QLatin1StringView(key), otherwise);
        };
        // A stored text that is no flag or number turns the property off: no font is worth a failed start.
        const auto flag = [&](const char *key, bool otherwise) {
            return value(key, flagWord(otherwise)).compare(flagWord(true), Qt::CaseInsensitive) == 0;
        };
        const double size = ValueOf(value("FontSize", numberText(fallback.size)));
        return Font{.name = value("FontName", fallback.name),
                    .size = size > 0 ? size : fallback.size,
                    .bold = flag("FontBold", fallback.bold),
                    .italic = flag("FontItalic", fallback.italic)};
    };
    m_session->aFonts = {read(QStringLiteral("Prop_"), m_session->currentFont()),
                         read(QStringLiteral("Fixed_"), {QStringLiteral("Courier New"), 10})};
    m_session->bFontUseProp = preferenceIsOne(u"FontUseProp");
    m_session->applyFonts();
}

void modMain::countStart() {
    const QString usage = QStringLiteral("Usage");
    const QString startDate = QStringLiteral("StartDate");
    if (m_services.store.GetSetting(statisticsTree(), usage, startDate).isEmpty())
        m_services.store.SaveSetting(statisticsTree(), usage, startDate, dateText(m_services.clock.now()));
    m_services.store.increment(statisticsTree(), usage, QStringLiteral("Count"));
}

void modMain::showTroubleOfStore() {
    const QString trouble = m_services.store.takeTrouble();
    if (!trouble.isEmpty())
        m_services.boxes.show({.text = trouble, .icon = BoxIcon::Exclamation});
}

void modMain::finish() {
    sendStatistics();
    m_session->toolSettings().unload();
    m_window->unloadForms();
    showTroubleOfStore();
}

void modMain::sendStatistics() {
    const bool update = preference(u"AllowStats") == QLatin1StringView("1");
    const bool stats = update; // one preference allows both
    if (!update && !stats)
        return;
    const QDateTime started = toDate(
        m_services.store.GetSetting(statisticsTree(), QStringLiteral("Usage"), QStringLiteral("StartDate")));
    if (started.addDays(daysWithoutReport) < m_services.clock.now())
        runCheckForUpdates(m_services.processes, m_services.boxes, m_services.programFolder, update, stats,
                           true);
}

QString modMain::preference(const char16_t *key) const {
    return readSetting(m_services.store, u"Preferences", key);
}

bool modMain::preferenceIsOne(const char16_t *key) const {
    return ValueOf(preference(key)) == 1;
}

} // namespace tolvo
