// SPDX-License-Identifier: MIT
#include "spelling/ui/frmDictionaries.h"

#include "platform/message_box.h"
#include "spelling/dictionary_installation.h"
#include "spelling/found_languages.h"
#include "spelling/language_names.h"

#include <QApplication>
#include <QBoxLayout>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontMetrics>
#include <QLabel>
#include <QPushButton>
#include <QStandardPaths>
#include <QTreeWidget>

namespace tolvo {

namespace {

constexpr int pathRole = Qt::UserRole;

QPushButton *addButton(QWidget *parent, QBoxLayout &column, const char *name, const QString &caption) {
    auto *button = new QPushButton(caption, parent);
    button->setObjectName(QLatin1StringView(name));
    column.addWidget(button);
    return button;
}

} // namespace

frmDictionaries::frmDictionaries(const SpellingServices &services, QWidget *parent,
                                 const QStringList &folders)
    : QDialog(parent), m_services(services), lvwDictionaries(new QTreeWidget(this)),
      labNote(new QLabel(this)) {
    setObjectName(QStringLiteral("frmDictionaries"));
    setWindowTitle(QStringLiteral("Add Language"));
    setModal(true);
    lvwDictionaries->setObjectName(QStringLiteral("lvwDictionaries"));
    lvwDictionaries->setAccessibleName(QStringLiteral("Dictionaries"));
    lvwDictionaries->setHeaderLabels(
        {QStringLiteral("Dictionary"), QStringLiteral("State"), QStringLiteral("Place")});
    lvwDictionaries->setRootIsDecorated(false);
    layOut();
    connect(lvwDictionaries, &QTreeWidget::currentItemChanged, this,
            [this] { cmdAdd->setEnabled(!selectedPath().isEmpty()); });
    connect(lvwDictionaries, &QTreeWidget::itemActivated, this, [this] { addPath(selectedPath()); });
    fill(folders);
    resize(fontMetrics().averageCharWidth() * 90, fontMetrics().lineSpacing() * 20);
}

void frmDictionaries::layOut() {
    labNote->setObjectName(QStringLiteral("labNote"));
    labNote->setWordWrap(true);
    auto *buttons = new QVBoxLayout;
    cmdAdd = addButton(this, *buttons, "cmdAdd", QStringLiteral("&Add"));
    cmdAdd->setEnabled(false);
    cmdFile = addButton(this, *buttons, "cmdFile", QStringLiteral("From &File..."));
    buttons->addStretch(1);
    QPushButton *close = addButton(this, *buttons, "cmdClose", QStringLiteral("Close"));
    connect(cmdAdd, &QPushButton::clicked, this, [this] { addPath(selectedPath()); });
    connect(cmdFile, &QPushButton::clicked, this, [this] { addFile(); });
    connect(close, &QPushButton::clicked, this, &QDialog::reject);
    auto *column = new QVBoxLayout;
    column->addWidget(labNote);
    column->addWidget(lvwDictionaries, 1);
    auto *columns = new QHBoxLayout(this);
    columns->addLayout(column, 1);
    columns->addLayout(buttons);
}

QStringList frmDictionaries::usualFolders() {
    QStringList folders;
    for (const auto place : {QStandardPaths::DownloadLocation, QStandardPaths::DesktopLocation,
                             QStandardPaths::DocumentsLocation})
        folders += QStandardPaths::writableLocation(place);
    return folders;
}

void frmDictionaries::addRow(const QString &name, const QString &place, const QString &state,
                             const QString &path) {
    auto *row = new QTreeWidgetItem(lvwDictionaries, {name, state, place});
    row->setData(0, pathRole, path);
    row->setSizeHint(2, {0, fontMetrics().lineSpacing() + 4}); // names have accents
}

void frmDictionaries::fill(const QStringList &folders) {
    const QStringList offers = dictionariesToAdd(folders);
    for (const QString &path : offers) {
        const QFileInfo file(path);
        const bool isPair = file.suffix() == QStringLiteral("dic");
        addRow(isPair ? languageName(localeOfFile(file.completeBaseName())) : file.fileName(),
               QDir::toNativeSeparators(file.path()), QStringLiteral("Can be added"), path);
    }
    for (const FoundLanguage &found : foundLanguages(m_services))
        addRow(found.name, found.place(), QStringLiteral("Ready"), {});
    for (int column = 0; column < lvwDictionaries->columnCount(); ++column)
        lvwDictionaries->resizeColumnToContents(column);
    labNote->setText(
        offers.isEmpty()
            ? QStringLiteral("These languages are ready. To add another, choose a file that holds its "
                             "dictionary: a package (.oxt) or a pair of files (.aff and .dic).")
            : QStringLiteral("What lies among your downloads can be added here, and any other package "
                             "(.oxt) or pair of files (.aff and .dic) from its file."));
    if (!offers.isEmpty())
        lvwDictionaries->setCurrentItem(lvwDictionaries->topLevelItem(0));
    (offers.isEmpty() ? cmdFile : cmdAdd)->setDefault(true);
    (offers.isEmpty() ? static_cast<QWidget *>(cmdFile) : lvwDictionaries)->setFocus();
}

QString frmDictionaries::selectedPath() const {
    const QTreeWidgetItem *row = lvwDictionaries->currentItem();
    return row ? row->data(0, pathRole).toString() : QString();
}

void frmDictionaries::addFile() {
    addPath(QFileDialog::getOpenFileName(
        this, QStringLiteral("Choose a Dictionary"), usualFolders().constFirst(),
        QStringLiteral("Dictionaries (*.oxt *.zip *.aff *.dic);;All files (*)")));
}

void frmDictionaries::addPath(const QString &path) {
    if (path.isEmpty())
        return;
    QApplication::setOverrideCursor(Qt::WaitCursor);
    const AddedDictionaries result = addDictionaries(m_services, path);
    QApplication::restoreOverrideCursor();
    if (!result.fault.isEmpty()) {
        m_services.boxes.show({.text = QStringLiteral("This dictionary was not added.\r\n") + result.fault,
                               .icon = BoxIcon::Exclamation});
        return;
    }
    m_added = result.locales;
    accept();
}

} // namespace tolvo
