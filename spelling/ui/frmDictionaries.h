// SPDX-License-Identifier: MIT
// "Add Language": the dictionaries that are here already and those that lie where downloads do, and a file
// dialog for any other.
#pragma once

#include "spelling/spelling_services.h"

#include <QDialog>
#include <QStringList>

class QLabel;
class QPushButton;
class QTreeWidget;

namespace tolvo {

class frmDictionaries : public QDialog {
  public:
    /// Offers what lies in the folders.
    explicit frmDictionaries(const SpellingServices &services, QWidget *parent = nullptr,
                             const QStringList &folders = usualFolders());

    /// The locales that have been added. A box says why a dictionary can't be taken, and the window stays.
    [[nodiscard]] QStringList added() const { return m_added; }

    /// The user's folders of downloads, the desktop and documents.
    [[nodiscard]] static QStringList usualFolders();

  private:
    void layOut();
    void fill(const QStringList &folders);
    void addRow(const QString &name, const QString &place, const QString &state, const QString &path);
    void addFile();
    void addPath(const QString &path);
    [[nodiscard]] QString selectedPath() const;

    const SpellingServices &m_services;
    QStringList m_added;
    QTreeWidget *lvwDictionaries;
    QLabel *labNote;
    QPushButton *cmdAdd;
    QPushButton *cmdFile;
};

} // namespace tolvo
