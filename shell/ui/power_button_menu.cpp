// SPDX-License-Identifier: MIT
#include "shell/ui/power_button_menu.h"

#include "platform/clipboard.h"
#include "powerbuttons/button_sharing.h"
#include "powerbuttons/ui/dlgShareButton.h"
#include "powerbuttons/ui/dlgTakeButton.h"
#include "powerbuttons/ui/icon_painter.h"
#include "shell/button_exchange.h"
#include "shell/example_loading.h"
#include "shell/frmMain.h"
#include "shell/record_button.h"
#include "shell/ui/MainWindow.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QMenu>
#include <QPushButton>
#include <QSaveFile>

namespace tolvo {

namespace {

QString fileFilter() {
    return QStringLiteral("PowerButtons (*%1);;All files (*)").arg(buttonFileEnding);
}

/// A file name of a button's name, which may hold anything.
QString fileNameOf(const QString &name) {
    QString result;
    for (const QChar c : name.simplified())
        result += c.isLetterOrNumber() || c == u'-' || c == u'_' ? c : u' ';
    result = result.simplified().left(60);
    return (result.isEmpty() ? QStringLiteral("PowerButton") : result) + buttonFileEnding;
}

} // namespace

PowerButtonMenu::PowerButtonMenu(frmMain &session, MainWindow &window, QString readyMade)
    : m_session(session), m_window(window), m_readyMade(std::move(readyMade)), m_menu(new QMenu(&window)) {
    m_menu->setObjectName(QStringLiteral("mnuPowerButtons"));
    connect(m_menu, &QMenu::aboutToShow, this, &PowerButtonMenu::fill);
    window.setPowerButtonMenu(*m_menu);
}

/// What it runs may open a dialog, and so waits until the menu and its button are done.
QAction *PowerButtonMenu::add(QMenu &menu, const QString &text, const std::function<void()> &run) {
    QAction *action = menu.addAction(text);
    connect(action, &QAction::triggered, this, run, Qt::QueuedConnection);
    return action;
}

void PowerButtonMenu::fill() {
    m_menu->clear();
    add(*m_menu, QStringLiteral("&Share..."), [this] {
        share();
    })->setEnabled(anyPowerButtonDefined(m_session.services().oPowerButtons));
    add(*m_menu, QStringLiteral("&Load from File..."), [this] { chooseFile(); });
    add(*m_menu, QStringLiteral("Load from &Clipboard..."), [this] { loadFromClipboard(); });
    addReadyMade();
    m_menu->addSeparator();
    add(*m_menu, QStringLiteral("&Make a PowerButton of What I Just Did"), [this] {
        recordPowerButton(m_session);
    })->setEnabled(!m_session.history().latestActions().isEmpty());
}

void PowerButtonMenu::addReadyMade() {
    const QDir folder(m_readyMade);
    QMenu *menu = nullptr;
    for (const QString &file : folder.entryList({u'*' + QString(buttonFileEnding)}, QDir::Files)) {
        const QString path = folder.filePath(file);
        const SharedButtons shared = loadButtonFile(path, m_session.services().oTools);
        if (!shared.trouble.isEmpty())
            continue;
        if (menu == nullptr)
            menu = m_menu->addMenu(QStringLiteral("&Ready-made"));
        const QString name =
            QString(shared.main().Name).replace(QLatin1StringView("&"), QLatin1StringView("&&"));
        add(*menu, name, [this, path] { loadFile(path); })->setIcon(toQIcon(shownIcon(shared.main(), 1)));
    }
}

void PowerButtonMenu::share() {
    m_session.guarded(u"shareButton", [this] {
        m_session.refreshPowerButtons();
        dlgShareButton dialog(m_session.services().oPowerButtons, 1, &m_window);
        dialog.onCopy = [this](const QString &text) {
            m_session.services().clipboard.writeText(QString(text).replace(u'\n', QStringLiteral("\r\n")));
            m_session.setStatus(QStringLiteral("PowerButton copied as text"));
        };
        dialog.onSave = [this](const QString &text, const QString &name) { saveFile(text, name); };
        dialog.exec();
    });
}

void PowerButtonMenu::saveFile(const QString &text, const QString &name) {
    QString path =
        QFileDialog::getSaveFileName(QApplication::activeModalWidget(), QStringLiteral("Save PowerButton"),
                                     fileNameOf(name), fileFilter());
    if (path.isEmpty())
        return;
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(text.toUtf8()) < 0 || !file.commit())
        m_session.say(QStringLiteral("The file can't be written: ") + file.errorString(),
                      BoxIcon::Exclamation);
    else
        m_session.setStatus(QStringLiteral("PowerButton saved as ") + QFileInfo(path).fileName());
}

void PowerButtonMenu::chooseFile() {
    const QString path =
        QFileDialog::getOpenFileName(&m_window, QStringLiteral("Open PowerButton"), {}, fileFilter());
    if (!path.isEmpty())
        loadFile(path);
}

void PowerButtonMenu::loadFile(const QString &path, int number) {
    load(loadButtonFile(path, m_session.services().oTools), QFileInfo(path).fileName(), number);
}

void PowerButtonMenu::loadFromClipboard() {
    if (const std::optional<QString> text = m_session.clipboardText())
        load(readButtonFile(*text, m_session.services().oTools), QStringLiteral("The clipboard"), 0);
}

void PowerButtonMenu::load(const SharedButtons &shared, const QString &origin, int number) {
    m_session.guarded(u"loadButton", [&] {
        if (!shared.trouble.isEmpty())
            return m_session.say(origin + QStringLiteral(" can't be taken as a PowerButton.\r\n\r\n") +
                                     shared.trouble + u'.',
                                 BoxIcon::Exclamation);
        m_session.refreshPowerButtons();
        dlgTakeButton dialog(shared, m_session.services().oPowerButtons, &m_window);
        if (const int place = dialog.choosePlace(number); place > 0)
            takeSharedButtons(m_session, shared, place);
        m_window.shownTextBox().setFocus();
    });
}

} // namespace tolvo
