// SPDX-License-Identifier: MIT
// Shows the Hunspell languages that the store lists. Nothing is changed here.
#pragma once

#include <QDialog>

class QTreeWidget;

namespace tolvo {

class SettingsStore;

class dlgHunspellLanguage : public QDialog {
  public:
    explicit dlgHunspellLanguage(SettingsStore &store, QWidget *parent = nullptr);

  private:
    void fill(SettingsStore &store);

    QTreeWidget *lvwHunspellLangs;
};

} // namespace tolvo
