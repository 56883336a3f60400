// SPDX-License-Identifier: MIT
// The run from its start to its end. The order of the steps is design: the text box must exist before the
// panel is filled, the fonts must be read before anything shows them, and the bottom state of undo is the
// clipboard's text.
#include "base/application.h"
#include "base/paths.h"
#include "platform/check_for_updates.h"
#include "platform/kept_free.h"
#include "platform/report_error.h"
#include "shell/apply_options.h"
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
    const ProgramOptions options = loadOptions(m_services.store, m_session->currentFont());
    m_session->useTextBox(options.wordWrap);
    oTools = Catalogue::read(sAppPath(m_services.dataFolder) + Catalogue::fileName);
    oToolbox.init(oTools.panelItems());
    m_session->loadPowerButtons();
    if (options.showTips)
        showTips();
    useOptions(*m_session, options);
    countStart();
    m_clipboardLater = m_window->takesClipboardLater();
    if (!m_clipboardLater)
        m_session->takeClipboard();
    m_session->initIcons();
    if (!m_clipboardLater)
        m_session->beginWithText();
    m_session->reportTroubleOfStore();
}

void modMain::windowShown() {
    if (m_clipboardLater)
        m_session->guarded(u"beginWithClipboard", [this] { m_session->beginWithClipboard(); });
    m_window->whenPlaced([this](const QList<QRect> &keepFree) {
        set(m_services.store, settingKeys.hints.keepFree, writtenAreas(keepFree));
        m_services.processes.letGo();
    });
}

void modMain::createSession() {
    m_window = m_makeWindow();
    m_session = std::make_unique<frmMain>(SessionServices{.store = m_services.store,
                                                          .clipboard = m_services.clipboard,
                                                          .boxes = m_services.boxes,
                                                          .sound = m_services.sound,
                                                          .clock = m_services.clock,
                                                          .extensions = m_services.extensions,
                                                          .oTools = oTools,
                                                          .oPowerButtons = oPowerButtons,
                                                          .oPBMethods = oPBMethods,
                                                          .view = m_window->view(),
                                                          .dialogs = m_window->dialogs(),
                                                          .spelling = m_services.spelling},
                                          m_window->txtText1(), m_window->txtTextWW());
    m_window->attach(*m_session, oToolbox);
    oToolbox.setSound([this] {
        if (m_session->bSounds)
            oSound.PlayWav(sAppPath(m_services.dataFolder) + QStringLiteral("scrbar.wav"), cSound::playOnce);
    });
}

void modMain::showTips() {
    // It stands beside the window and over nothing: what the start has to say comes first.
    m_services.processes.start({.program = sAppPath(m_services.programFolder) + QStringLiteral("Advisor.exe"),
                                .mode = WindowMode::NormalWithoutFocus,
                                .heldBack = true});
}

void modMain::countStart() {
    const StatisticsKeys &statistics = settingKeys.statistics;
    if (!isSet(m_services.store, statistics.startDate))
        set(m_services.store, statistics.startDate, m_services.clock.now());
    increment(m_services.store, statistics.starts);
}

void modMain::finish() {
    sendStatistics();
    m_session->toolSettings().unload();
    m_window->unloadForms();
    m_session->reportTroubleOfStore();
}

void modMain::sendStatistics() {
    const bool allowed = loadOptions(m_services.store).allowStats; // updates as well as counters
    if (!allowed)
        return;
    const QDateTime started = get(m_services.store, settingKeys.statistics.startDate);
    if (started.addDays(daysWithoutReport) < m_services.clock.now())
        runCheckForUpdates(m_services.processes, m_services.boxes, m_services.programFolder, true, true,
                           true);
}

} // namespace tolvo
