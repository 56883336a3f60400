// SPDX-License-Identifier: MIT
#include "shell/ui/desktop_dialogs.h"

#include "base/paths.h"
#include "platform/desktop/font_conversion.h"
#include "powerbuttons/ui/frmPowerButton.h"
#include "preferences/settings_keys.h"
#include "preferences/ui/frmAbout.h"
#include "search/ui/frmSearch.h"
#include "search/ui/frmSearchResults.h"
#include "shell/apply_options.h"
#include "shell/search_tools.h"
#include "shell/tool_call.h"
#include "shell/ui/MainWindow.h"
#include "shell/ui/clear_of_text.h"
#include "shell/ui/dialog_sizes.h"
#include "shell/ui/dlgConfirmClose.h"
#include "shell/ui/editor_effects.h"
#include "shell/ui/manual_key.h"
#include "shell/ui/window_memory.h"
#include "spelling/language_rows.h"
#include "spelling/spelling_provider.h"
#include "spelling/ui/UserDictionaryWindow.h"
#include "spelling/ui/dlgDicQuickList.h"
#include "spelling/ui/dlgHunspellLanguage.h"
#include "spelling/ui/dlgSpellLanguage.h"
#include "spelling/ui/dlgSpelling.h"
#include "text/ui/frmStats.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <utility>

namespace tolvo {

DesktopDialogs::DesktopDialogs(const RunServices &services, MainWindow &parent)
    : m_services(services), m_parent(parent), m_docking(parent, services.store) {
    m_results = std::make_unique<SearchResultsWindow>(
        [this] { return toQFont(m_session->currentFont()); },
        [this]() -> TextBox & { return m_session->txtCurrent(); }, &m_parent);
    m_results->run = [this](QDialog &list) { return m_docking.run(list); };
    m_results->onShow = [this](QWidget &list) { placeBesideText(list, m_parent); };
    m_results->onHit = [this](QWidget &list) {
        moveOffSelection(list, m_parent);
        if (m_search)
            moveOffSelection(*m_search, m_parent);
    };
}

DesktopDialogs::~DesktopDialogs() = default;

QString DesktopDialogs::manualFolder() const {
    return sAppPath(m_services.dataFolder) + QStringLiteral("manual/");
}

void DesktopDialogs::attach(frmMain &session) {
    m_session = &session;
    new DialogSizes(session, m_parent);
    new ManualKey(m_services.processes, m_services.boxes, manualFolder(), m_parent);
}

void DesktopDialogs::unload() {
    if (m_search) {
        keepPlace(m_services.store, settingKeys.windows.search, placeOf(*m_search));
        m_search->saveState();
    }
    m_search.reset();
    m_preferences.reset();
    m_powerButtonEditor.reset();
    m_spellingDialog.reset();
    m_languageDialog.reset();
}

SearchResults &DesktopDialogs::searchResults() {
    return *m_results;
}

dlgDicQuickList &DesktopDialogs::languageForm() {
    if (!m_languageDialog) {
        m_languageDialog = std::make_unique<dlgDicQuickList>(m_services.spelling, &m_parent);
        m_languageDialog->setText([this] { return m_session->txtCurrent().Text(); });
        m_languageDialog->setOptionsOpener([this] {
            prepareOptions();
            m_preferences->showSpellingPage();
            m_preferences->exec();
        });
    }
    return *m_languageDialog;
}

bool DesktopDialogs::CheckSpelling(ProofingHost &host, QString &text, int LangID, bool grammar) {
    if (!m_spellingDialog) {
        m_spellingDialog = std::make_unique<dlgSpelling>(m_services.spelling, &m_parent);
        m_spellingDialog->setWorker(m_parent.worker());
    }
    const bool changed = m_spellingDialog->CheckSpelling(host, text, LangID, grammar);
    takeFocusBack();
    return changed;
}

int DesktopDialogs::GetLangID(int LangID, bool save) {
    return languageForm().GetLangID(LangID, save);
}

/// After dialogs that may end with a question of their own: a window manager that sees both windows go at the
/// same moment can leave the focus with no window at all.
void DesktopDialogs::takeFocusBack() {
    m_parent.activateWindow();
}

CloseAnswer DesktopDialogs::confirmClose(const QString &prompt) {
    return dlgConfirmClose(&m_parent).MsgBox(prompt);
}

void DesktopDialogs::showOptions() {
    prepareOptions();
    m_preferences->exec();
}

void DesktopDialogs::prepareOptions() {
    if (!m_preferences) {
        m_options.emplace(
            m_services, *m_session, [this](int provider) { configureProvider(provider); },
            [this] { editOwnWords(); });
        m_preferences = std::make_unique<dlgPreferences>(*m_options, m_services.boxes, &m_parent);
    }
    const QString startDate = textOf(m_services.store, settingKeys.statistics.startDate);
    m_preferences->init(presentOptions(*m_session), lastCheckText(startDate, m_services.clock.now()));
}

void DesktopDialogs::configureProvider(int provider) {
    if (provider == providerType::word)
        dlgSpellLanguage(m_services.spelling, m_preferences.get()).DictionaryQuickList();
    else
        dlgHunspellLanguage(m_services.spelling, m_preferences.get()).exec();
    if (m_languageDialog)
        m_languageDialog->readLanguagesAnew();
}

/// Of the language of the latest check.
void DesktopDialogs::editOwnWords() {
    const SpellingServices &spelling = m_services.spelling;
    const QString chosen = chosenLocale(spelling, LanguageList(spelling.store).storedLangID());
    const QString locale = chosen.isEmpty() ? settingKeys.spelling.hunLocale.otherwise() : chosen;
    UserDictionaryWindow(spelling, locale, m_preferences.get()).exec();
}

void DesktopDialogs::showAbout() {
    const QDate built = QFileInfo(QCoreApplication::applicationFilePath()).lastModified().date();
    frmAbout about(m_services.processes, m_services.boxes, built, &m_parent);
    const QString manual = manualFolder() + QStringLiteral("index.html");
    if (QFileInfo::exists(manual))
        about.offerManual(manual);
    about.exec();
}

void DesktopDialogs::showStatistics(const TextStatistics &statistics) {
    frmStats(m_services.boxes, statistics, &m_parent).exec();
}

void DesktopDialogs::editPowerButton(int index) {
    if (!m_powerButtonEditor) {
        const SessionServices &session = m_session->services();
        m_powerButtonEditor = std::make_unique<frmPowerButton>(
            session.oPowerButtons, session.oPBMethods, session.oTools, m_services.boxes,
            static_cast<ActionSettings &>(*this), &m_parent);
        m_editorEffects = std::make_unique<EditorEffects>(*m_session, m_parent.worker());
        m_powerButtonEditor->showEffectsOf(*m_editorEffects);
    }
    m_powerButtonEditor->init(index);
    m_powerButtonEditor->exec();
    takeFocusBack();
}

frmSearch &DesktopDialogs::searchWindow() {
    if (!m_search) {
        m_search =
            std::make_unique<frmSearch>(m_session->oSearch, m_services.store, m_services.boxes, &m_parent);
        m_search->watch({.boxes = {&m_parent.txtText1(), &m_parent.txtTextWW()},
                         .shown = [this]() -> PlainTextBox & { return m_parent.shownTextBox(); },
                         .worker = m_parent.worker()});
        m_search->onCopyMatches = [this](const MatchCopy &copy) { copyMatchesOfWindow(copy); };
        m_searchIsPlaced = bringBackCorner(*m_search, m_services.store, settingKeys.windows.search);
        keepSearchClear();
        m_docking.add(*m_search);
    }
    return *m_search;
}

/// At its first place, when it grows, and after each search.
void DesktopDialogs::keepSearchClear() {
    m_search->onShow = [this] {
        if (!m_search->isModal() && !std::exchange(m_searchIsPlaced, true))
            placeBesideText(*m_search, m_parent);
    };
    m_search->onFitted = [this] { moveOntoScreen(*m_search); };
    m_search->onSearched = [this] {
        if (!m_search->isModal())
            moveOffSelection(*m_search, m_parent);
    };
}

/// A copy in place of the text is one step of undo.
void DesktopDialogs::copyMatchesOfWindow(const MatchCopy &copy) {
    m_session->guarded(u"copyMatches", [&] {
        if (copy.inPlace)
            m_session->pushUndo();
        const RunScope run(*m_session, {.name = QStringLiteral("Copy matches")});
        m_session->history().noteAction(
            std::make_shared<CAction>(m_session->services().oTools.tool(QStringLiteral("edCPM")),
                                      SettingsFrom::Custom, settingsString(copy)));
        copyMatches(m_session->toolCall(), copy);
        if (copy.inPlace)
            m_session->pushUndo();
    });
}

void DesktopDialogs::showSearchDirection(SearchDirection direction) {
    if (m_search)
        m_search->setDirection(direction);
}

} // namespace tolvo
