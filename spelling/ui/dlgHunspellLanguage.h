// SPDX-License-Identifier: MIT
// The languages that Hunspell can check in: those that the store lists and those with a dictionary here.
// Dictionaries are added and taken away here; the lists of the store stay as they are.
#pragma once

#include "spelling/language_rows.h"

#include <QDialog>
#include <QList>

class QPushButton;
class QTreeWidget;

namespace tolvo {

struct SpellingServices;

class dlgHunspellLanguage : public QDialog {
  public:
    explicit dlgHunspellLanguage(const SpellingServices &services, QWidget *parent = nullptr);

  private:
    void layOut();
    /// Fills the list and selects a locale; its first row if there is no such locale.
    void fill(const QString &selected);
    void addLanguage();
    void removeLanguage();
    [[nodiscard]] HunspellRow selectedRow() const;

    const SpellingServices &m_services;
    QList<HunspellRow> m_rows; ///< of lvwHunspellLangs

    QTreeWidget *lvwHunspellLangs;
    QPushButton *cmdRemove;
};

} // namespace tolvo
