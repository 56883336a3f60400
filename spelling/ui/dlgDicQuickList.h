// SPDX-License-Identifier: MIT
// Asks for the language of a check.
#pragma once

#include "spelling/language_rows.h"
#include "spelling/spelling_services.h"

#include <QDialog>
#include <QList>
#include <functional>

class QComboBox;
class QLabel;
class QToolButton;

namespace tolvo {

class dlgDicQuickList : public QDialog {
  public:
    explicit dlgDicQuickList(const SpellingServices &services, QWidget *parent = nullptr);

    /// The number of the language that the user chooses, or languageCancelled. `LangID` is selected at first;
    /// languageCancelled stands for the stored one. `save` stores the choice.
    int GetLangID(int LangID, bool save);

    /// The same for a settings string: takes `LangID` out of it and gives back "LangID=" and the number, or
    /// leaves it alone and returns false if the user cancelled.
    bool getSettings(QString &settings);

    /// Opens the Options; while there is nothing to open them, labChange is not shown.
    void setOptionsOpener(std::function<void()> opener);

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
    void manageDictionaries();

    const SpellingServices &m_services;
    std::function<void()> m_openOptions;
    int m_provider = -1;
    bool m_filled = false;
    QList<LanguageRow> m_rows; ///< of cmbQuickList

    QComboBox *cmbQuickList;
    QLabel *labPlace; ///< of the selected language's dictionary
    QLabel *labProvider;
    QLabel *labChange;
    QToolButton *imgBrowse;
};

} // namespace tolvo
