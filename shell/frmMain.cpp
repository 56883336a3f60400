// SPDX-License-Identifier: MIT
// The session as an object: what it is built on, its status line, what the layers below ask of it.
#include "shell/frmMain.h"

namespace tolvo {

frmMain::frmMain(const SessionServices &services, TextBox &txtText1, TextBox &txtTextWW)
    : oTextMethods(*this,
                   [&extensions = services.extensions](const QString &extension) {
                       return extensions.IsRegisteredExtension(extension);
                   }),
      oUndo(undoHooks()), oSearch(*this, services.boxes, oTextMethods), m_services(services),
      m_history(oUndo, services.clock), m_txtText1(txtText1), m_txtTextWW(txtTextWW), m_txtCurrent(&txtText1),
      m_toolSettings(services.store), m_cuts(services.boxes) {
    listenTo(m_txtText1);
    listenTo(m_txtTextWW);
}

frmMain::~frmMain() {
    for (TextBox *box : {&m_txtText1, &m_txtTextWW}) {
        box->onChange = nullptr;
        box->onUserEdit = nullptr;
        box->onCut = nullptr;
    }
}

void frmMain::listenTo(TextBox &box) {
    box.onChange = [this] { m_dirty = true; };
    box.onUserEdit = [this](const UserEdit &edit) { m_history.noteUserEdit(edit, textState(txtCurrent())); };
    box.onCut = [this, &box](qint64 length, TextBox::Writer writer) { m_cuts.note(box, length, writer); };
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

void frmMain::warn(const QString &text, const QString &title) {
    ++m_warnings;
    m_services.boxes.show({.text = text, .icon = BoxIcon::Exclamation, .title = title});
}

void frmMain::directionChanged(SearchDirection direction) {
    m_services.dialogs.showSearchDirection(direction);
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
