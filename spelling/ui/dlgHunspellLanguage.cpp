// SPDX-License-Identifier: MIT
#include "spelling/ui/dlgHunspellLanguage.h"

#include "platform/message_box.h"
#include "spelling/dictionary_installation.h"
#include "spelling/spelling_services.h"
#include "spelling/ui/frmDictionaries.h"

#include <QBoxLayout>
#include <QFontMetrics>
#include <QPushButton>
#include <QTreeWidget>

namespace tolvo {

dlgHunspellLanguage::dlgHunspellLanguage(const SpellingServices &services, QWidget *parent)
    : QDialog(parent), m_services(services), lvwHunspellLangs(new QTreeWidget(this)) {
    setObjectName(QStringLiteral("dlgHunspellLanguage"));
    setWindowTitle(QStringLiteral("Select Language"));
    setModal(true);
    lvwHunspellLangs->setObjectName(QStringLiteral("lvwHunspellLangs"));
    lvwHunspellLangs->setAccessibleName(QStringLiteral("Languages"));
    lvwHunspellLangs->setHeaderLabels({QStringLiteral("Locale"), QStringLiteral("Language"),
                                       QStringLiteral("Territory"), QStringLiteral("Dictionary")});
    lvwHunspellLangs->setRootIsDecorated(false);
    layOut();
    connect(lvwHunspellLangs, &QTreeWidget::currentItemChanged, this,
            [this] { cmdRemove->setEnabled(!selectedRow().added.dic.isEmpty()); });
    fill({});
    resize(fontMetrics().averageCharWidth() * 110, fontMetrics().lineSpacing() * 20);
}

void dlgHunspellLanguage::layOut() {
    auto *add = new QPushButton(QStringLiteral("Add Language..."), this);
    add->setObjectName(QStringLiteral("cmdAddLanguage"));
    cmdRemove = new QPushButton(QStringLiteral("Remove"), this);
    cmdRemove->setObjectName(QStringLiteral("cmdRemove"));
    cmdRemove->setToolTip(QStringLiteral("Takes away a dictionary that you have added"));
    auto *ok = new QPushButton(QStringLiteral("OK"), this);
    ok->setObjectName(QStringLiteral("cmdOK"));
    ok->setDefault(true);
    connect(add, &QPushButton::clicked, this, [this] { addLanguage(); });
    connect(cmdRemove, &QPushButton::clicked, this, [this] { removeLanguage(); });
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);

    auto *buttons = new QVBoxLayout;
    buttons->addWidget(add);
    buttons->addWidget(cmdRemove);
    buttons->addStretch(1);
    buttons->addWidget(ok);
    auto *columns = new QHBoxLayout(this);
    columns->addWidget(lvwHunspellLangs, 1);
    columns->addLayout(buttons);
}

void dlgHunspellLanguage::fill(const QString &selected) {
    lvwHunspellLangs->clear();
    m_rows = hunspellWindowRows(m_services);
    int current = 0;
    for (const HunspellRow &row : std::as_const(m_rows)) {
        const HunspellLanguage &language = row.language;
        if (language.locale == selected)
            current = lvwHunspellLangs->topLevelItemCount();
        auto *item = new QTreeWidgetItem(lvwHunspellLangs,
                                         {language.locale, language.language, language.territory, row.place});
        item->setSizeHint(3, {0, fontMetrics().lineSpacing() + 4}); // names have accents
    }
    for (int column = 0; column < lvwHunspellLangs->columnCount(); ++column)
        lvwHunspellLangs->resizeColumnToContents(column);
    lvwHunspellLangs->setCurrentItem(lvwHunspellLangs->topLevelItem(current));
}

HunspellRow dlgHunspellLanguage::selectedRow() const {
    return m_rows.value(lvwHunspellLangs->indexOfTopLevelItem(lvwHunspellLangs->currentItem()));
}

void dlgHunspellLanguage::addLanguage() {
    frmDictionaries window(m_services, this);
    if (window.exec() != Accepted)
        return;
    fill(window.added().value(0));
    lvwHunspellLangs->setFocus();
}

void dlgHunspellLanguage::removeLanguage() {
    const HunspellRow row = selectedRow();
    const BoxAnswer answer = m_services.boxes.show(
        {.text = QStringLiteral("Remove the dictionary of %1 from this computer?").arg(row.language.language),
         .icon = BoxIcon::Question,
         .buttons = BoxButtons::YesNo});
    if (answer != BoxAnswer::Yes)
        return;
    lvwHunspellLangs->setFocus(); // the button goes grey
    const QString fault = removeDictionary(m_services, row.added);
    if (!fault.isEmpty())
        m_services.boxes.show({.text = fault, .icon = BoxIcon::Exclamation});
    fill({});
}

} // namespace tolvo
