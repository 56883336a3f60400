// SPDX-License-Identifier: MIT
#include "preferences/ui/dlgPreferences.h"

#include "base/paths.h"
#include "base/strings.h"
#include "platform/message_box.h"
#include "preferences/special_folders.h"

#include <QFileDialog>
#include <QFontDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>

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

void dlgPreferences::chooseFont(int index) {
    Font &font = m_options.fonts[static_cast<std::size_t>(index)];
    QFont start(font.name);
    start.setPointSizeF(font.size);
    start.setBold(font.bold);
    start.setItalic(font.italic);
    bool ok = false;
    const QFont chosen = QFontDialog::getFont(&ok, start, this, tr("Choose font"));
    if (!ok)
        return;
    font = {chosen.family(), chosen.pointSizeF(), chosen.bold(), chosen.italic()};
    m_txtFont[static_cast<std::size_t>(index)]->setText(FontDescription(font));
}

void dlgPreferences::extensionTyped(const QString &text) {
    // A blank and a full stop are no part of an extension; dropping them here swallows them however they come
    // in.
    QString allowed = text;
    allowed.remove(u' ').remove(u'.');
    if (allowed != text) {
        m_txtExt->setText(allowed);
        return;
    }
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
    return m_folder.isEmpty() ? GetDocumentsFolder() : m_folder;
}

void dlgPreferences::rememberFolder(const QString &file) {
    m_folder = file.chopped(leafOfPlatformPath(file).size());
}

void dlgPreferences::exportPrefs(bool powerButtonsOnly) {
    const QString title =
        powerButtonsOnly ? tr("Export PowerButtons") : tr("Export Preferences and PowerButtons");
    const QString file = QFileDialog::getSaveFileName(this, title, folder(), fileFilter());
    if (file.isEmpty())
        return;
    rememberFolder(file);
    m_actions.exportPrefs(file, powerButtonsOnly);
}

void dlgPreferences::cmdImport_Click() {
    const QString file = QFileDialog::getOpenFileName(this, tr("Import Preferences"), folder(), fileFilter());
    if (file.isEmpty())
        return;
    rememberFolder(file);
    m_actions.importPrefs(file);
}

} // namespace tolvo
