// SPDX-License-Identifier: MIT
#include "preferences/ui/dlgPreferences.h"

#include "base/paths.h"
#include "base/strings.h"
#include "platform/desktop/FontDialog.h"
#include "platform/desktop/enter_key.h"
#include "platform/message_box.h"
#include "platform/special_folders.h"
#include "preferences/ui/TypedTextBox.h"

#include <QCheckBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>

namespace tolvo {

namespace {

// The first row shows everything; platforms whose file names need no full stop have a wider pattern for that.
QString fileFilter() {
#ifdef Q_OS_WIN
    const QString all = QStringLiteral("All Files (*.*)");
#else
    const QString all = QStringLiteral("All Files (*)");
#endif
    return all + QStringLiteral(";;Preference files (*.pref);;Text Files (*.txt);;Registry Files (*.reg)");
}

} // namespace

void dlgPreferences::init(const ProgramOptions &options, const QString &lastCheck) {
    m_options = options;
    for (std::size_t i = 0; i < 2; ++i)
        m_txtFont[i]->setText(FontDescription(options.fonts[i]));
    m_optProp[options.useProportional ? 0 : 1]->setChecked(true);
    m_chkWordwrap->setChecked(options.wordWrap);
    m_lstExtensions->clear();
    for (const QString &extension : options.extensions) {
        if (!m_actions.isSystemExtension(extension))
            m_lstExtensions->addItem(extension);
    }
    m_txtExt->clear();
    m_optTLDs[options.fullDomainList ? 0 : 1]->setChecked(true);
    m_chkShowTips->setChecked(options.showTips);
    m_chkTroubles->setChecked(options.showTroubles);
    m_chkSounds->setChecked(options.sounds);
    m_chkUpdates->setChecked(options.checkUpdates);
    m_chkUsageStats->setChecked(options.allowStats);
    m_labLastCheck->setText(lastCheck);
    m_typedText->showOptions(options);
    for (std::size_t i = 0; i < m_optSpellingProvider.size(); ++i) {
        // Without this a number outside the list would leave the option of the time before ticked.
        m_optSpellingProvider[i]->setAutoExclusive(false);
        m_optSpellingProvider[i]->setChecked(static_cast<int>(i) == options.provider);
        m_optSpellingProvider[i]->setAutoExclusive(true);
    }
}

ProgramOptions dlgPreferences::options() const {
    ProgramOptions options = m_options;
    options.useProportional = m_optProp[0]->isChecked();
    options.wordWrap = m_chkWordwrap->isChecked();
    options.extensions.clear();
    for (int row = 0; row < m_lstExtensions->count(); ++row)
        options.extensions += m_lstExtensions->item(row)->text();
    options.fullDomainList = m_optTLDs[0]->isChecked();
    options.showTips = m_chkShowTips->isChecked();
    options.showTroubles = m_chkTroubles->isChecked();
    options.sounds = m_chkSounds->isChecked();
    options.checkUpdates = m_chkUpdates->isChecked();
    options.allowStats = m_chkUsageStats->isChecked();
    static_cast<TypedTextOptions &>(options) = m_typedText->options();
    for (std::size_t i = 0; i < m_optSpellingProvider.size(); ++i) {
        if (m_optSpellingProvider[i]->isChecked())
            options.provider = static_cast<int>(i);
    }
    return options;
}

void dlgPreferences::showSpellingPage() {
    m_tabs->setCurrentIndex(m_tabs->count() - 1);
    for (QRadioButton *option : m_optSpellingProvider) {
        if (option->isChecked())
            option->setFocus();
    }
}

void dlgPreferences::chooseFont(int index) {
    Font &font = m_options.fonts[static_cast<std::size_t>(index)];
    FontDialog dialog(font, this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    font = dialog.font();
    m_txtFont[static_cast<std::size_t>(index)]->setText(FontDescription(font));
}

void dlgPreferences::extensionTyped(const QString &text) {
    m_cmdAdd->setEnabled(!text.isEmpty());
    if (text.isEmpty())
        return;
    for (int row = 0; row < m_lstExtensions->count(); ++row) {
        if (m_lstExtensions->item(row)->text().startsWith(text, Qt::CaseInsensitive)) {
            m_lstExtensions->setCurrentRow(row);
            return;
        }
    }
}

bool dlgPreferences::eventFilter(QObject *watched, QEvent *event) {
    if (watched == m_txtExt && event->type() == QEvent::KeyPress) {
        const QString typed = static_cast<QKeyEvent *>(event)->text();
        if (typed == u' ' || typed == u'.')
            return true; // what is selected stays as well
    }
    return QDialog::eventFilter(watched, event);
}

void dlgPreferences::keyPressEvent(QKeyEvent *event) {
    if (isEnter(*event) && focusWidget() == m_txtExt)
        addExtension();
    else if (!pressToolButton(*event, focusWidget()))
        QDialog::keyPressEvent(event);
}

void dlgPreferences::addExtension() {
    const QString extension = m_txtExt->text();
    if (extension.isEmpty())
        return;
    if (m_actions.isSystemExtension(extension)) {
        m_boxes.show({.text = FillTemplate(
                          QStringLiteral("File extension '%0' is a registered file type on this PC.\r\n"
                                         "You do not need to add it here"),
                          {extension})});
        return;
    }
    if (!m_lstExtensions->findItems(extension, Qt::MatchFixedString).isEmpty()) {
        m_boxes.show({.text = FillTemplate(QStringLiteral("File extension '%0' is in the list already"),
                                           {extension})});
        return;
    }
    m_lstExtensions->addItem(extension.toLower());
    m_txtExt->clear();
}

void dlgPreferences::removeExtension() {
    delete m_lstExtensions->currentItem();
    m_txtExt->clear();
}

void dlgPreferences::cmdApply_Click() {
    m_options = options();
    m_actions.apply(m_options);
}

QString dlgPreferences::folder() const {
    const QString folder = m_folder.isEmpty() ? GetDocumentsFolder() : m_folder;
    // The file dialog would take a folder that isn't there for the name of a file.
    return QFileInfo(folder).isDir() ? folder : GetSpecialFolder(specialFolder::home);
}

void dlgPreferences::rememberFolder(const QString &file) {
    m_folder = file.chopped(leafOfPlatformPath(file).size());
}

void dlgPreferences::exportPrefs(bool powerButtonsOnly) {
    const QString title = powerButtonsOnly ? QStringLiteral("Export PowerButtons")
                                           : QStringLiteral("Export Preferences and PowerButtons");
    const QString file = QFileDialog::getSaveFileName(this, title, folder(), fileFilter());
    if (file.isEmpty())
        return;
    rememberFolder(file);
    m_actions.exportPrefs(file, powerButtonsOnly);
}

void dlgPreferences::cmdImport_Click() {
    const QString file =
        QFileDialog::getOpenFileName(this, QStringLiteral("Import Preferences"), folder(), fileFilter());
    if (file.isEmpty())
        return;
    rememberFolder(file);
    m_actions.importPrefs(file);
}

} // namespace tolvo
