// SPDX-License-Identifier: MIT
#include "spelling/ui/UserDictionaryWindow.h"

#include "base/numbers.h"
#include "platform/message_box.h"
#include "platform/report_error.h"
#include "platform/special_folders.h"
#include "widgets/ElidedLabel.h"
#include "widgets/announce.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QFileDialog>
#include <QFormLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

namespace tolvo {

namespace {

/// "1 word", "2,000 words".
QString counted(qsizetype words) {
    return groupedNumber(words) + (words == 1 ? QStringLiteral(" word") : QStringLiteral(" words"));
}

} // namespace

UserDictionaryWindow::UserDictionaryWindow(const SpellingServices &services, const QString &locale,
                                           QWidget *parent)
    : QDialog(parent), m_services(services), cmbLanguage(new QComboBox(this)), txtWord(new QLineEdit(this)),
      lstWords(new QListWidget(this)),
      labCount(new ElidedLabel(QStringLiteral("labCount"), QStringLiteral("Words"))) {
    setObjectName(QStringLiteral("UserDictionaryWindow"));
    setWindowTitle(QStringLiteral("Your Own Words"));
    setModal(true);
    cmbLanguage->setObjectName(QStringLiteral("cmbLanguage"));
    txtWord->setObjectName(QStringLiteral("txtWord"));
    lstWords->setObjectName(QStringLiteral("lstWords"));
    lstWords->setAccessibleName(QStringLiteral("Words"));
    lstWords->setSelectionMode(QListWidget::ExtendedSelection);
    lstWords->installEventFilter(this);
    offerLanguages(locale);

    auto *left = new QVBoxLayout;
    left->addLayout(layOutTop());
    left->addWidget(lstWords, 1);
    left->addWidget(labCount);
    auto *columns = new QHBoxLayout(this);
    columns->addLayout(left, 1);
    columns->addLayout(layOutButtons());
    connect(cmbLanguage, &QComboBox::currentIndexChanged, this, [this] { refresh(); });
    connect(txtWord, &QLineEdit::textEdited, this, [this] { wordTyped(); });
    connect(lstWords, &QListWidget::itemSelectionChanged, this,
            [this] { cmdRemove->setEnabled(!lstWords->selectedItems().isEmpty()); });
    resize(fontMetrics().averageCharWidth() * 60, fontMetrics().lineSpacing() * 22);
    txtWord->setFocus();
    refresh();
}

QLayout *UserDictionaryWindow::layOutTop() {
    auto *form = new QFormLayout;
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form->addRow(QStringLiteral("&Language:"), cmbLanguage);
    form->addRow(QStringLiteral("&Word:"), txtWord);
    return form;
}

QPushButton *UserDictionaryWindow::addButton(const QString &name, const QString &caption,
                                             void (UserDictionaryWindow::*act)()) {
    auto *button = new QPushButton(caption, this);
    button->setObjectName(name);
    connect(button, &QPushButton::clicked, this, act);
    return button;
}

QLayout *UserDictionaryWindow::layOutButtons() {
    cmdAdd = addButton(QStringLiteral("cmdAdd"), QStringLiteral("&Add"), &UserDictionaryWindow::add);
    cmdAdd->setDefault(true);
    cmdRemove =
        addButton(QStringLiteral("cmdRemove"), QStringLiteral("&Remove"), &UserDictionaryWindow::remove);
    cmdExport = addButton(QStringLiteral("cmdExport"), QStringLiteral("&Export..."),
                          &UserDictionaryWindow::exportWords);
    auto *column = new QVBoxLayout;
    column->addWidget(cmdAdd);
    column->addWidget(cmdRemove);
    column->addSpacing(fontMetrics().lineSpacing() / 2);
    column->addWidget(addButton(QStringLiteral("cmdImport"), QStringLiteral("&Import..."),
                                &UserDictionaryWindow::importWords));
    column->addWidget(cmdExport);
    column->addStretch(1);
    auto *close = new QPushButton(QStringLiteral("Close"), this);
    close->setObjectName(QStringLiteral("cmdClose"));
    connect(close, &QPushButton::clicked, this, &QDialog::accept);
    column->addWidget(close);
    return column;
}

void UserDictionaryWindow::offerLanguages(const QString &locale) {
    for (const UserLanguage &language : userLanguages(m_services)) {
        cmbLanguage->addItem(language.name, language.locale);
        if (language.locale == locale)
            cmbLanguage->setCurrentIndex(cmbLanguage->count() - 1);
    }
}

UserDictionary UserDictionaryWindow::dictionary() const {
    return {m_services, cmbLanguage->currentData().toString()};
}

template <class Action>
bool UserDictionaryWindow::attempt(const QString &name, Action &&action) {
    return reportFailures(m_services.boxes, objectName(), name, std::forward<Action>(action));
}

void UserDictionaryWindow::refresh(const QStringList &chosen) {
    QStringList words;
    attempt(QStringLiteral("refresh"), [&] { words = dictionary().words(); });
    lstWords->clear();
    lstWords->addItems(words);
    const qsizetype row = chosen.isEmpty() ? -1 : words.indexOf(chosen.first());
    lstWords->setCurrentRow(static_cast<int>(row));
    cmdRemove->setEnabled(row >= 0);
    cmdExport->setEnabled(!words.isEmpty());
    labCount->showText(counted(words.size()));
    wordTyped();
}

/// The list follows what is typed.
void UserDictionaryWindow::wordTyped() {
    const QString word = txtWord->text().trimmed();
    const auto same = lstWords->findItems(word, Qt::MatchFixedString | Qt::MatchCaseSensitive);
    cmdAdd->setEnabled(UserDictionary::isWord(word));
    if (word.isEmpty())
        return;
    lstWords->clearSelection();
    const auto begun = same.isEmpty() ? lstWords->findItems(word, Qt::MatchStartsWith) : same;
    if (!begun.isEmpty())
        lstWords->scrollToItem(begun.first(), QListWidget::PositionAtTop);
    if (!same.isEmpty())
        lstWords->setCurrentItem(same.first());
}

void UserDictionaryWindow::say(const QString &what) {
    labCount->showText(counted(lstWords->count()) + QStringLiteral(": ") + what);
    announce(labCount, what);
}

void UserDictionaryWindow::add() {
    const QString word = txtWord->text().trimmed();
    qsizetype added = 0;
    if (!attempt(QStringLiteral("add"), [&] { added = dictionary().add({word}); }))
        return;
    txtWord->clear();
    refresh({word});
    say((added > 0 ? QStringLiteral("added %1") : QStringLiteral("%1 is there already")).arg(word));
    txtWord->setFocus();
}

/// A single word that was removed stands in the field, so that Enter adds it again.
void UserDictionaryWindow::remove() {
    QStringList words;
    for (const QListWidgetItem *item : lstWords->selectedItems())
        words += item->text();
    const Box question{.text = QStringLiteral("Do you really want to remove %1?").arg(counted(words.size())),
                       .icon = BoxIcon::Question,
                       .buttons = BoxButtons::YesNo};
    if (words.isEmpty() || (words.size() > 1 && m_services.boxes.show(question) != BoxAnswer::Yes))
        return;
    if (!attempt(QStringLiteral("remove"), [&] { dictionary().remove(words); }))
        return;
    txtWord->setText(words.size() == 1 ? words.first() : QString());
    refresh();
    say(words.size() == 1 ? QStringLiteral("removed %1").arg(words.first())
                          : QStringLiteral("removed %1").arg(counted(words.size())));
    txtWord->setFocus();
    txtWord->selectAll();
}

void UserDictionaryWindow::importWords() {
    const QString file = QFileDialog::getOpenFileName(this, QStringLiteral("Import Words"),
                                                      GetSpecialFolder(specialFolder::home));
    if (file.isEmpty())
        return;
    QStringList words;
    qsizetype added = 0;
    if (!attempt(QStringLiteral("importWords"), [&] {
            words = UserDictionary::wordsOf(file);
            added = dictionary().add(words);
        }))
        return;
    refresh();
    const qsizetype known = words.size() - added;
    say(QStringLiteral("added %1%2")
            .arg(groupedNumber(added),
                 known == 0 ? QString() : QStringLiteral(", %1 known already").arg(groupedNumber(known))));
}

void UserDictionaryWindow::exportWords() {
    const QString proposed =
        GetSpecialFolder(specialFolder::home) +
        QStringLiteral("/words_%1.txt").arg(cmbLanguage->currentData().toString().replace(u'-', u'_'));
    const QString file = QFileDialog::getSaveFileName(this, QStringLiteral("Export Words"), proposed);
    if (!file.isEmpty() && attempt(QStringLiteral("exportWords"), [&] { dictionary().exportTo(file); }))
        say(QStringLiteral("written to %1").arg(file));
}

bool UserDictionaryWindow::eventFilter(QObject *watched, QEvent *event) {
    if (watched == lstWords && event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent *>(event)->key() == Qt::Key_Delete) {
        remove();
        return true;
    }
    return QDialog::eventFilter(watched, event);
}

} // namespace tolvo
