// SPDX-License-Identifier: MIT
#include "spelling/ui/dlgDicQuickList.h"

#include "base/CParams.h"
#include "base/conversions.h"
#include "platform/desktop/enter_key.h"
#include "platform/report_error.h"
#include "spelling/found_languages.h"
#include "spelling/language_guess.h"
#include "spelling/language_names.h"
#include "spelling/spelling_provider.h"
#include "spelling/ui/dlgHunspellLanguage.h"
#include "spelling/ui/dlgSpellLanguage.h"
#include "widgets/ElidedLabel.h"
#include "widgets/LinkLabel.h"
#include "widgets/announce.h"

#include <QAbstractItemView>
#include <QBoxLayout>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QToolButton>
#include <algorithm>

namespace tolvo {

dlgDicQuickList::dlgDicQuickList(const SpellingServices &services, QWidget *parent,
                                 BackgroundWorker::Thread thread)
    : QDialog(parent), m_services(services), cmbQuickList(new QComboBox(this)), labPlace(new QLabel(this)),
      labGuess(new ElidedLabel(QStringLiteral("labGuess"), QStringLiteral("Language of the text"))),
      labProvider(new QLabel(this)),
      labChange(new LinkLabel(QStringLiteral("Change"), QStringLiteral("options"),
                              LinkLabel::Underline::Always, this)),
      imgBrowse(new QToolButton(this)), m_worker(thread) {
    setObjectName(QStringLiteral("dlgDicQuickList"));
    setWindowTitle(QStringLiteral("Select dictionary"));
    setModal(true);
    cmbQuickList->setObjectName(QStringLiteral("cmbQuickList"));
    cmbQuickList->setAccessibleName(QStringLiteral("Dictionary"));
    cmbQuickList->setMinimumContentsLength(30);
    labPlace->setObjectName(QStringLiteral("labPlace"));
    labPlace->setTextFormat(Qt::PlainText);
    labGuess->setMinimumHeight(fontMetrics().lineSpacing()); // so that nothing moves when it speaks
    labProvider->setObjectName(QStringLiteral("labProvider"));
    labChange->setObjectName(QStringLiteral("labChange"));
    labChange->hide();
    imgBrowse->setObjectName(QStringLiteral("imgBrowse"));
    imgBrowse->setToolTip(QStringLiteral("Manage dictionaries"));
    imgBrowse->setAccessibleName(QStringLiteral("Manage dictionaries"));
    imgBrowse->setText(QStringLiteral("..."));
    imgBrowse->setFocusPolicy(Qt::StrongFocus);
    layOut();
    connect(imgBrowse, &QToolButton::clicked, this, [this] { manageDictionaries(); });
    connect(cmbQuickList, &QComboBox::currentIndexChanged, this, [this] { showPlace(); });
    connect(labChange, &QLabel::linkActivated, this, &dlgDicQuickList::changeProvider);
}

void dlgDicQuickList::layOut() {
    auto *note =
        new QLabel(QStringLiteral("To add to and remove dictionaries from this list, choose Options and use "
                                  "Manage Dictionaries on the Spelling page."),
                   this);
    note->setWordWrap(true);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Ok)->setObjectName(QStringLiteral("OKButton"));
    buttons->button(QDialogButtonBox::Ok)->setDefault(true);
    buttons->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("CancelButton"));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto *choice = new QGridLayout;
    auto *caption = new QLabel(QStringLiteral("&Dictionary:"), this);
    caption->setBuddy(cmbQuickList); // its accessible name, for a list that drops down
    choice->addWidget(caption, 0, 0);
    choice->addWidget(cmbQuickList, 0, 1);
    choice->addWidget(imgBrowse, 0, 2);
    choice->addWidget(labPlace, 1, 1);
    choice->addWidget(labGuess, 2, 0, 1, 3);
    choice->setColumnStretch(1, 1);
    auto *provider = new QHBoxLayout;
    provider->addWidget(labProvider);
    provider->addWidget(labChange);
    provider->addStretch(1);
    auto *rows = new QVBoxLayout(this);
    rows->addLayout(choice);
    rows->addLayout(provider);
    rows->addWidget(note);
    rows->addStretch(1);
    rows->addWidget(buttons);
}

void dlgDicQuickList::keyPressEvent(QKeyEvent *event) {
    // A label gives the focus to itself first and to its link at the next Tab: Enter works from the first.
    if (isEnter(*event) && focusWidget() == labChange)
        changeProvider();
    else if (!pressToolButton(*event, focusWidget()))
        QDialog::keyPressEvent(event);
}

void dlgDicQuickList::changeProvider() {
    m_openOptions();
    showProvider();
    FillSpelling();
}

void dlgDicQuickList::setOptionsOpener(std::function<void()> opener) {
    m_openOptions = std::move(opener);
    labChange->setVisible(m_openOptions != nullptr);
}

void dlgDicQuickList::showProvider() {
    const int provider = LanguageList(m_services.store).provider();
    if (provider != m_provider)
        m_filled = false;
    m_provider = provider;
    labProvider->setText(QStringLiteral("Provider: ") + providerName(provider));
}

void dlgDicQuickList::FillSpelling() {
    if (m_filled)
        return;
    m_filled = true;
    m_rows = languageRows(m_services, m_provider);
    cmbQuickList->clear();
    for (const LanguageRow &row : std::as_const(m_rows)) {
        cmbQuickList->addItem(row.language.row());
        cmbQuickList->setItemData(cmbQuickList->count() - 1, row.place, Qt::ToolTipRole);
    }
    selectLanguage(LanguageList(m_services.store).storedLangID());
}

void dlgDicQuickList::selectLanguage(int LangID) {
    if (const int row = firstRow(m_rows, m_services, LangID); row >= 0)
        cmbQuickList->setCurrentIndex(row);
    showPlace();
}

void dlgDicQuickList::showPlace() {
    const QString place = m_rows.value(cmbQuickList->currentIndex()).place;
    labPlace->setText(place);
    labPlace->setVisible(!place.isEmpty());
    cmbQuickList->setAccessibleDescription(place);
}

/// Measures the text in the background.
void dlgDicQuickList::guess() {
    const QString sample = m_text && m_provider != providerType::word ? sampleOf(m_text()) : QString();
    if (sample.isEmpty())
        return;
    QList<GuessedLanguage> languages;
    const auto add = [&](const LanguageRow &row) {
        if (!row.files.dic.isEmpty())
            languages += {localeOfFile(row.language.Locale), row.files};
    };
    // Of equals, the one that would be taken without a guess.
    const int before = cmbQuickList->currentIndex();
    add(m_rows.value(before));
    for (const bool main : {true, false}) {
        for (const LanguageRow &row : std::as_const(m_rows)) {
            if (isOfMainTerritory(row.language.Locale) == main)
                add(row);
        }
    }
    m_guess.start(
        [sample, languages](const Cancellation &cancellation) {
            return guessLanguage(sample, languages, [&cancellation] { return cancellation.cancelled(); });
        },
        [this, before](const QString &locale) { putFirst(locale, before); });
}

/// What is selected stays so: Enter must not take what has come a moment before. A list that is open, or in
/// which the user has chosen already, stays as it is.
void dlgDicQuickList::putFirst(const QString &locale, int before) {
    const auto isGuess = [&](const LanguageRow &row) { return localeOfFile(row.language.Locale) == locale; };
    const auto found = std::find_if(m_rows.begin(), m_rows.end(), isGuess);
    if (locale.isEmpty() || found == m_rows.end() || cmbQuickList->currentIndex() != before ||
        cmbQuickList->view()->isVisible())
        return;
    const int row = static_cast<int>(found - m_rows.begin());
    const LanguageRow guessed = *found;
    m_rows.move(row, 0);
    const QSignalBlocker quiet(cmbQuickList);
    cmbQuickList->removeItem(row);
    cmbQuickList->insertItem(0, guessed.language.row());
    cmbQuickList->setItemData(0, guessed.place, Qt::ToolTipRole);
    const bool isSelected = row == before;
    cmbQuickList->setCurrentIndex(isSelected ? 0 : before + (row > before ? 1 : 0));
    showPlace();
    m_filled = m_filled && row == 0; // the next text may have another language
    if (isSelected)
        return;
    labGuess->showText(
        QStringLiteral("The text looks like %1, the first of the list.").arg(guessed.language.Description));
    announce(labGuess, labGuess->text());
}

int dlgDicQuickList::GetLangID(int LangID, bool save) {
    LanguageList lists(m_services.store);
    const int asked = LangID == languageCancelled ? lists.storedLangID() : LangID;
    showProvider();
    FillSpelling();
    selectLanguage(asked);
    cmbQuickList->setFocus();
    labGuess->showText({});
    if (save)
        guess();
    const int answer = exec();
    m_guess.cancel();
    if (answer != Accepted)
        return languageCancelled;
    const int row = cmbQuickList->currentIndex();
    // A list without rows leaves the language as it is.
    const int chosen = row < 0 ? asked : m_rows[row].language.ID;
    if (save)
        lists.saveLangID(chosen);
    return chosen;
}

bool dlgDicQuickList::getSettings(QString &settings) {
    const QString stored = CParams(settings).arg(QStringLiteral("LangID"));
    bool isNumber = false;
    const int number = stored.toInt(&isNumber);
    const int chosen = GetLangID(isNumber ? number : languageCancelled, false);
    if (chosen == languageCancelled)
        return false;
    settings = QStringLiteral("LangID=") + QString::number(chosen);
    return true;
}

void dlgDicQuickList::manageDictionaries() {
    if (m_provider == providerType::word) {
        dlgSpellLanguage(m_services, this).DictionaryQuickList();
    } else {
        dlgHunspellLanguage(m_services, this).exec();
    }
    m_filled = false;
    FillSpelling();
}

} // namespace tolvo
