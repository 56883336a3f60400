// SPDX-License-Identifier: MIT
#include "shell/ui/desktop_dialogs.h"

#include "platform/desktop/font_conversion.h"
#include "powerbuttons/ui/frmPowerButton.h"
#include "preferences/settings_keys.h"
#include "preferences/ui/frmAbout.h"
#include "search/ui/frmSearch.h"
#include "search/ui/frmSearchResults.h"
#include "shell/apply_options.h"
#include "shell/ui/MainWindow.h"
#include "spelling/ui/dlgDicQuickList.h"
#include "spelling/ui/dlgHunspellLanguage.h"
#include "spelling/ui/dlgSpellLanguage.h"
#include "spelling/ui/dlgSpelling.h"
#include "text/ui/frmStats.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace tolvo {

DesktopDialogs::DesktopDialogs(const RunServices &services, MainWindow &parent)
    : m_services(services), m_parent(parent), m_options(services) {
    m_options.onConfigureProvider = [this](int provider) { configureProvider(provider); };
    m_results = std::make_unique<SearchResultsWindow>(
        [this] { return toQFont(m_session->currentFont()); },
        [this]() -> TextBox & { return m_session->txtCurrent(); }, &m_parent);
}

DesktopDialogs::~DesktopDialogs() = default;

void DesktopDialogs::attach(frmMain &session) {
    m_session = &session;
    m_options.attach(session);
}

void DesktopDialogs::unload() {
    if (m_search)
        m_search->saveState();
    m_search.reset();
    m_preferences.reset();
    m_powerButtonEditor.reset();
    m_spellingDialog.reset();
    m_languageDialog.reset();
}

SearchResults &DesktopDialogs::searchResults() {
    return *m_results;
}

frmSearch &DesktopDialogs::searchForm() {
    if (!m_search)
        m_search =
            std::make_unique<frmSearch>(m_session->oSearch(), m_services.store, m_services.boxes, &m_parent);
    return *m_search;
}

dlgDicQuickList &DesktopDialogs::languageForm() {
    if (!m_languageDialog) {
        m_languageDialog = std::make_unique<dlgDicQuickList>(m_services.spelling, &m_parent);
        m_languageDialog->setOptionsOpener([this] {
            prepareOptions();
            m_preferences->showSpellingPage();
            m_preferences->exec();
        });
    }
    return *m_languageDialog;
}

bool DesktopDialogs::LateSpelling::CheckSpelling(ProofingHost &host, QString &text, int LangID,
                                                 bool grammar) {
    if (!m_owner.m_spellingDialog)
        m_owner.m_spellingDialog =
            std::make_unique<dlgSpelling>(m_owner.m_services.spelling, &m_owner.m_parent);
    const bool changed = m_owner.m_spellingDialog->CheckSpelling(host, text, LangID, grammar);
    m_owner.takeKeysBack();
    return changed;
}

int DesktopDialogs::LateLanguages::GetLangID(int LangID, bool save) {
    return m_owner.languageForm().GetLangID(LangID, save);
}

/// Behind dialogs that may end with a question of their own: a window manager that sees both windows go at
/// the same moment can leave the keys with no window at all.
void DesktopDialogs::takeKeysBack() {
    m_parent.activateWindow();
}

void DesktopDialogs::showOptions() {
    prepareOptions();
    m_preferences->exec();
}

void DesktopDialogs::prepareOptions() {
    if (!m_preferences)
        m_preferences = std::make_unique<dlgPreferences>(m_options, m_services.boxes, &m_parent);
    const QString startDate = textOf(m_services.store, settingKeys.statistics.startDate);
    m_preferences->init(presentOptions(*m_session), lastCheckText(startDate, m_services.clock.now()));
}

void DesktopDialogs::configureProvider(int provider) {
    if (provider == 0) {
        dlgSpellLanguage(m_services.spelling, m_preferences.get()).DictionaryQuickList();
        // The quick list may have changed: the language list reads it anew.
        m_languageDialog.reset();
    } else {
        dlgHunspellLanguage(m_services.store, m_preferences.get()).exec();
    }
}

void DesktopDialogs::showAbout() {
    const QDate built = QFileInfo(QCoreApplication::applicationFilePath()).lastModified().date();
    frmAbout(m_services.processes, m_services.boxes, built, &m_parent).exec();
}

void DesktopDialogs::showStatistics(const TextStatistics &statistics) {
    frmStats(m_services.boxes, statistics, &m_parent).exec();
}

void DesktopDialogs::editPowerButton(int index) {
    if (!m_powerButtonEditor) {
        const SessionServices &session = m_session->services();
        m_powerButtonMethods =
            std::make_unique<CPowerButtonMethods>(m_services.store, session.oTools, m_services.boxes);
        m_powerButtonEditor = std::make_unique<frmPowerButton>(
            session.oPowerButtons, *m_powerButtonMethods, session.oTools, m_services.boxes,
            static_cast<ActionSettings &>(*this), &m_parent);
    }
    m_powerButtonEditor->init(index);
    m_powerButtonEditor->exec();
    takeKeysBack();
}

void DesktopDialogs::setSearchText(const QString &text) {
    searchForm().setSearchText(text);
}

QString DesktopDialogs::searchText() {
    return searchForm().searchText();
}

void DesktopDialogs::setSpecialChars(bool on) {
    searchForm().setSpecialChars(on);
}

bool DesktopDialogs::specialChars() {
    return searchForm().specialChars();
}

void DesktopDialogs::expandDialog() {
    searchForm().expandDialog();
}

void DesktopDialogs::showDialog(bool bReplace) {
    searchForm().showDialog(bReplace);
}

void DesktopDialogs::cmdSearch_Click() {
    searchForm().cmdSearch_Click();
}

SearchRequest DesktopDialogs::request() {
    return searchForm().request();
}

void DesktopDialogs::setDirection(SearchDirection direction) {
    // A PowerButton's search needs no window: what it says about the next direction then reaches nobody.
    if (m_search)
        m_search->setDirection(direction);
}

} // namespace tolvo
