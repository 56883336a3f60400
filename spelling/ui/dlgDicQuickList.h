// SPDX-License-Identifier: MIT
// Asks for the language of a check.
#pragma once

#include "platform/background_job.h"
#include "spelling/language_rows.h"
#include "spelling/spelling_services.h"

#include <QDialog>
#include <QList>
#include <functional>

class QComboBox;
class QLabel;
class QToolButton;

namespace tolvo {

class ElidedLabel;

class dlgDicQuickList : public QDialog {
  public:
    explicit dlgDicQuickList(const SpellingServices &services, QWidget *parent = nullptr,
                             BackgroundWorker::Thread thread = BackgroundWorker::Thread::Own);

    /// The number of the language that the user chooses, or languageCancelled. `LangID` is selected at first;
    /// languageCancelled stands for the stored one. `save` stores the choice.
    int GetLangID(int LangID, bool save);

    /// The same for a settings string: takes `LangID` out of it and gives back "LangID=" and the number, or
    /// leaves it alone and returns false if the user cancelled.
    bool getSettings(QString &settings);

    /// Opens the Options; while there is nothing to open them, labChange is not shown.
    void setOptionsOpener(std::function<void()> opener);

    /// What the text is whose language is asked for: its own language is put first, if that is clear.
    void setText(std::function<QString()> text) { m_text = std::move(text); }
    /// To be called when languages have come or gone.
    void readLanguagesAnew() { m_filled = false; }

  protected:
    void keyPressEvent(QKeyEvent *event) override;

  private:
    void layOut();
    void changeProvider();
    void showProvider();
    void FillSpelling();
    void selectLanguage(int LangID);
    void showPlace();
    void guess();
    void putFirst(const QString &locale, int before);
    void manageDictionaries();

    const SpellingServices &m_services;
    std::function<void()> m_openOptions;
    std::function<QString()> m_text;
    int m_provider = -1;
    bool m_filled = false;
    QList<LanguageRow> m_rows; ///< of cmbQuickList

    QComboBox *cmbQuickList;
    QLabel *labPlace; ///< of the selected language's dictionary
    ElidedLabel *labGuess;
    QLabel *labProvider;
    QLabel *labChange;
    QToolButton *imgBrowse;
    BackgroundWorker m_worker;
    BackgroundJob m_guess{m_worker};
};

} // namespace tolvo
