// SPDX-License-Identifier: MIT
// Which of Word's languages stand in the quick list.
#pragma once

#include "spelling/languages.h"
#include "spelling/spelling_services.h"

#include <QDialog>
#include <functional>

class QCheckBox;
class QLineEdit;
class QTreeWidget;

namespace tolvo {

class dlgSpellLanguage : public QDialog {
  public:
    explicit dlgSpellLanguage(const SpellingServices &services, QWidget *parent = nullptr);

    /// Shows the window and stores what was chosen; false if the user cancelled.
    bool DictionaryQuickList();

    /// Fills the list and ticks the languages of the quick list.
    void init();

    /// Reads Word's languages into the store. `cancelled` is asked before each language. False, and the user
    /// has been told, if that failed.
    bool doGetDicListFromWord(const std::function<bool()> &cancelled);

  private:
    void layOut();
    void getDicListFromWord();
    void find(const QString &start);
    void save();

    const SpellingServices &m_services;
    QTreeWidget *lvwDictionaries;
    QLineEdit *txtFind;
    QCheckBox *chkUseWordSpellingDialog;
};

} // namespace tolvo
