// SPDX-License-Identifier: MIT
#include "spelling/ui/dlgHunspellLanguage.h"

#include "spelling/language_rows.h"

#include <QBoxLayout>
#include <QFontMetrics>
#include <QHeaderView>
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

    // These two have no function yet.
    auto *add = new QPushButton(QStringLiteral("Add Language..."), this);
    add->setObjectName(QStringLiteral("cmdAddLanguage"));
    auto *remove = new QPushButton(QStringLiteral("Remove"), this);
    remove->setObjectName(QStringLiteral("cmdRemove"));
    auto *ok = new QPushButton(QStringLiteral("OK"), this);
    ok->setObjectName(QStringLiteral("cmdOK"));
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);

    auto *buttons = new QVBoxLayout;
    buttons->addWidget(add);
    buttons->addWidget(remove);
    buttons->addStretch(1);
    buttons->addWidget(ok);
    auto *columns = new QHBoxLayout(this);
    columns->addWidget(lvwHunspellLangs, 1);
    columns->addLayout(buttons);
    resize(fontMetrics().averageCharWidth() * 80, fontMetrics().lineSpacing() * 18);
    fill();
}

void dlgHunspellLanguage::fill() {
    lvwHunspellLangs->clear();
    for (const HunspellRow &row : hunspellWindowRows(m_services)) {
        const HunspellLanguage &language = row.language;
        new QTreeWidgetItem(lvwHunspellLangs,
                            {language.locale, language.language, language.territory, row.place});
    }
    for (int column = 0; column < lvwHunspellLangs->columnCount(); ++column)
        lvwHunspellLangs->resizeColumnToContents(column);
}

} // namespace tolvo
