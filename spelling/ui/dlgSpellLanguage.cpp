// SPDX-License-Identifier: MIT
#include "spelling/ui/dlgSpellLanguage.h"

#include "base/failure.h"
#include "platform/message_box.h"
#include "spelling/ui/dlgReadDicsProgress.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QFontMetrics>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>

namespace tolvo {

namespace {

constexpr int idRole = Qt::UserRole;

QPushButton *addButton(QWidget *parent, QBoxLayout &column, const QString &name, const QString &caption) {
    auto *button = new QPushButton(caption, parent);
    button->setObjectName(name);
    column.addWidget(button);
    return button;
}

} // namespace

dlgSpellLanguage::dlgSpellLanguage(const SpellingServices &services, QWidget *parent)
    : QDialog(parent), m_services(services), lvwDictionaries(new QTreeWidget(this)),
      txtFind(new QLineEdit(this)), chkUseWordSpellingDialog(new QCheckBox(
                                        QStringLiteral("Use Microsoft Word's spelling dialogue"), this)) {
    setObjectName(QStringLiteral("dlgSpellLanguage"));
    setWindowTitle(QStringLiteral("Select Languages for Quick List"));
    setModal(true);
    lvwDictionaries->setObjectName(QStringLiteral("lvwDictionaries"));
    lvwDictionaries->setAccessibleName(QStringLiteral("Dictionaries"));
    lvwDictionaries->setHeaderLabels({QStringLiteral("Dictionary"), QStringLiteral("Language")});
    lvwDictionaries->setRootIsDecorated(false);
    txtFind->setObjectName(QStringLiteral("txtFind"));
    chkUseWordSpellingDialog->setObjectName(QStringLiteral("chkUseWordSpellingDialog"));
    layOut();
    connect(txtFind, &QLineEdit::textChanged, this, [this](const QString &start) { find(start); });
    resize(fontMetrics().averageCharWidth() * 85, fontMetrics().lineSpacing() * 26);
    init();
}

void dlgSpellLanguage::layOut() {
    auto *label = new QLabel(QStringLiteral("Find:"), this);
    label->setBuddy(txtFind);
    auto *buttons = new QVBoxLayout;
    QPushButton *ok = addButton(this, *buttons, QStringLiteral("cmdOK"), QStringLiteral("OK"));
    ok->setDefault(true);
    QPushButton *cancel = addButton(this, *buttons, QStringLiteral("cmdCancel"), QStringLiteral("Cancel"));
    QPushButton *help = addButton(this, *buttons, QStringLiteral("cmdHelp"), QStringLiteral("Help"));
    buttons->addStretch(1);
    QPushButton *update =
        addButton(this, *buttons, QStringLiteral("cmdUpdate"), QStringLiteral("Update list..."));
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(help, &QPushButton::clicked, this,
            [this] { m_services.boxes.show({.text = QStringLiteral("Help is not implemented yet")}); });
    connect(update, &QPushButton::clicked, this, [this] { getDicListFromWord(); });

    auto *finding = new QHBoxLayout;
    finding->addWidget(label);
    finding->addWidget(txtFind, 1);
    auto *rows = new QVBoxLayout;
    rows->addLayout(finding);
    rows->addWidget(lvwDictionaries, 1);
    rows->addWidget(chkUseWordSpellingDialog);
    auto *columns = new QHBoxLayout(this);
    columns->addLayout(rows, 1);
    columns->addLayout(buttons);
}

void dlgSpellLanguage::init() {
    const LanguageList lists(m_services.store);
    const QStringList quick = lists.wordQuickList();
    lvwDictionaries->clear();
    for (const CSpellLanguage &language : lists.wordLanguages()) {
        auto *row = new QTreeWidgetItem(lvwDictionaries, {language.Description, language.LangLocal});
        row->setData(0, idRole, language.ID);
        row->setCheckState(0, quick.contains(QString::number(language.ID)) ? Qt::Checked : Qt::Unchecked);
    }
    lvwDictionaries->resizeColumnToContents(0);
    chkUseWordSpellingDialog->setChecked(lists.useWordDialog());
}

bool dlgSpellLanguage::DictionaryQuickList() {
    if (exec() != Accepted)
        return false;
    save();
    return true;
}

void dlgSpellLanguage::save() {
    QStringList numbers;
    for (int row = 0; row < lvwDictionaries->topLevelItemCount(); ++row) {
        const QTreeWidgetItem *item = lvwDictionaries->topLevelItem(row);
        if (item->checkState(0) == Qt::Checked)
            numbers += item->data(0, idRole).toString();
    }
    LanguageList lists(m_services.store);
    lists.saveWordQuickList(numbers);
    lists.saveUseWordDialog(chkUseWordSpellingDialog->isChecked());
}

void dlgSpellLanguage::find(const QString &start) {
    const QList<QTreeWidgetItem *> rows = lvwDictionaries->findItems(start, Qt::MatchStartsWith, 0);
    if (!start.isEmpty() && !rows.isEmpty())
        lvwDictionaries->setCurrentItem(rows.first());
}

bool dlgSpellLanguage::doGetDicListFromWord(const std::function<bool()> &cancelled) {
    try {
        const QString list = readWordLanguages(m_services.word, cancelled);
        if (!list.isEmpty())
            LanguageList(m_services.store).saveWordLanguages(list);
        return true;
    } catch (const Failure &failure) {
        m_services.boxes.show(
            {.text = failure.number() == failureNumber::objectNotCreated
                         ? QStringLiteral("Microsoft Word must be installed to check spelling and grammar")
                         : failure.description() + QStringLiteral("\r\nPlease close Tolvo and try again")});
        return false;
    }
}

void dlgSpellLanguage::getDicListFromWord() {
    dlgReadDicsProgress progress(this);
    progress.ShowMe(
        [this](const std::function<bool()> &cancelled) { return doGetDicListFromWord(cancelled); });
    init();
}

} // namespace tolvo
