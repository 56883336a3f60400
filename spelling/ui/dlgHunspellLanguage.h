// SPDX-License-Identifier: MIT
// Shows the Hunspell languages that the store lists. Nothing is changed here.
#pragma once

#include <QDialog>

class QTreeWidget;

namespace tolvo {

struct SpellingServices;

class dlgHunspellLanguage : public QDialog {
  public:
    explicit dlgHunspellLanguage(const SpellingServices &services, QWidget *parent = nullptr);

  private:
    void fill();

    const SpellingServices &m_services;
    QTreeWidget *lvwHunspellLangs;
};

} // namespace tolvo
