// SPDX-License-Identifier: MIT
// The session as an object: what it is built on, its status line, what the layers below ask of it.
#include "shell/frmMain.h"

namespace tolvo {

frmMain::frmMain(const SessionServices &services, TextBox &txtText1, TextBox &txtTextWW,
                 SearchResults &results)
    : oTextMethods(*this,
                   [&extensions = services.extensions](const QString &extension) {
                       return extensions.IsRegisteredExtension(extension);
                   }),
      oUndo(undoHooks()), m_services(services), m_txtText1(txtText1), m_txtTextWW(txtTextWW),
      m_txtCurrent(&txtText1), m_results(results), m_toolSettings(services.store) {
    m_txtText1.onChange = [this] { m_dirty = true; };
    m_txtTextWW.onChange = [this] { m_dirty = true; };
}

frmMain::~frmMain() {
    m_txtText1.onChange = nullptr;
    m_txtTextWW.onChange = nullptr;
}

cUndo::Hooks frmMain::undoHooks() {
    return {
        .enableUndo =
            [this](bool enabled) {
                m_undoEnabled = enabled;
                m_services.view.undoRedoChanged(m_undoEnabled, m_redoEnabled);
            },
        .enableRedo =
            [this](bool enabled) {
                m_redoEnabled = enabled;
                m_services.view.undoRedoChanged(m_undoEnabled, m_redoEnabled);
            },
        .setStatus = [this](const QString &text) { setStatus(text); },
        .beep = [this] { beep(); },
        .mayDiscardTyping =
            [this] {
                return m_services.boxes.show({.text = QStringLiteral("Changes have been made to the text"),
                                              .icon = BoxIcon::Exclamation,
                                              .buttons = BoxButtons::YesNo}) == BoxAnswer::Yes;
            },
    };
}

void frmMain::setStatus(const QString &text) {
    m_status = text;
    m_services.view.statusChanged(text);
}

void frmMain::say(const QString &text, BoxIcon icon) {
    m_services.boxes.show({.text = text, .icon = icon});
}

void frmMain::beep() {
    if (bSounds)
        m_services.sound.beep();
}

TextState frmMain::textState() {
    return {txtCurrent().Text(), txtCurrent().SelStart(), txtCurrent().SelLength()};
}

void frmMain::restore(const TextState &state) {
    txtCurrent().setText(state.text);
    select(txtCurrent(), state.selStart, state.selLength);
}

CSearch &frmMain::oSearch() {
    if (!m_search)
        m_search =
            std::make_unique<CSearch>(static_cast<SearchHost &>(*this), m_services.boxes, oTextMethods);
    return *m_search;
}

void frmMain::warn(const QString &text, const QString &title) {
    noteWarning();
    m_services.boxes.show({.text = text, .icon = BoxIcon::Exclamation, .title = title});
}

void frmMain::directionChanged(SearchDirection direction) {
    m_services.windows.search().setDirection(direction);
}

bool frmMain::interrupted() {
    return m_services.view.interrupted();
}

void frmMain::processEvents() {
    m_services.view.processEvents();
}

void frmMain::reportTroubleOfStore() {
    const QString trouble = m_services.store.takeTrouble();
    if (!trouble.isEmpty())
        say(trouble, BoxIcon::Exclamation);
}

} // namespace tolvo
