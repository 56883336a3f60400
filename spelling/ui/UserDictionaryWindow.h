// SPDX-License-Identifier: MIT
// "Your own words": the words that a user has added to the dictionaries.
#pragma once

#include "spelling/UserDictionary.h"

#include <QDialog>

class QComboBox;
class QLayout;
class QLineEdit;
class QListWidget;
class QPushButton;

namespace tolvo {

class ElidedLabel;

/// Shows the words of one language after the other. What is done here is done at once.
class UserDictionaryWindow : public QDialog {
  public:
    /// Begins with the words of `locale`.
    UserDictionaryWindow(const SpellingServices &services, const QString &locale, QWidget *parent = nullptr);

  protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

  private:
    QLayout *layOutTop();
    QLayout *layOutButtons();
    QPushButton *addButton(const QString &name, const QString &caption, void (UserDictionaryWindow::*act)());
    void offerLanguages(const QString &locale);
    [[nodiscard]] UserDictionary dictionary() const;
    /// Shows the words anew, the first of `chosen` selected.
    void refresh(const QStringList &chosen = {});
    void wordTyped();
    void say(const QString &what);
    /// Runs an action, whose failure is reported.
    template <class Action>
    bool attempt(const QString &name, Action &&action);

    void add();
    void remove();
    void importWords();
    void exportWords();

    const SpellingServices &m_services;
    QComboBox *cmbLanguage;
    QLineEdit *txtWord;
    QListWidget *lstWords;
    ElidedLabel *labCount;
    QPushButton *cmdAdd = nullptr;
    QPushButton *cmdRemove = nullptr;
    QPushButton *cmdExport = nullptr;
};

} // namespace tolvo
