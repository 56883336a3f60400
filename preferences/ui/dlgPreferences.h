// SPDX-License-Identifier: MIT
// "Options": the program-wide settings.
#pragma once

#include "preferences/options.h"

#include <QDialog>
#include <array>

class QCheckBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QRadioButton;
class QTabWidget;

namespace tolvo {

class MessageBoxes;
class TypedTextBox;

/// What the dialog asks to be done. Failures are reported by who does it.
class OptionsActions {
  public:
    virtual ~OptionsActions() = default;
    /// Stores the options and puts them into effect.
    virtual void apply(const ProgramOptions &options) = 0;
    [[nodiscard]] virtual bool isSystemExtension(const QString &extension) const = 0;
    /// Looks for an update.
    virtual void checkNow() = 0;
    virtual void viewStatistics() = 0;
    virtual void exportPrefs(const QString &file, bool powerButtonsOnly) = 0;
    virtual void importPrefs(const QString &file) = 0;
    /// Opens the language list of a spelling provider, 0 to 3.
    virtual void configureProvider(int provider) = 0;
    /// Opens the list of the words that the user has added to the dictionaries.
    virtual void editOwnWords() = 0;
};

class dlgPreferences : public QDialog {
    Q_OBJECT
  public:
    dlgPreferences(OptionsActions &actions, MessageBoxes &boxes, QWidget *parent = nullptr);

    /// Shows the given state on the dialog's controls, without the extensions that the system knows.
    void init(const ProgramOptions &options, const QString &lastCheck);
    /// What the controls say.
    [[nodiscard]] ProgramOptions options() const;
    /// Opens the page "Spelling", with the focus on the chosen provider.
    void showSpellingPage();

  protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

  private:
    QWidget *displayPage();
    QWidget *extensionsPage();
    QWidget *generalPage();
    QWidget *spellingPage();
    QWidget *buttonRow();
    void chooseFont(int index);
    void extensionTyped(const QString &text);
    void addExtension();
    void removeExtension();
    void cmdApply_Click();
    void exportPrefs(bool powerButtonsOnly);
    void cmdImport_Click();
    /// The folder where a file dialog starts: that of the last file, at first the user's documents.
    [[nodiscard]] QString folder() const;
    void rememberFolder(const QString &file);

    OptionsActions &m_actions;
    MessageBoxes &m_boxes;
    ProgramOptions m_options; ///< fonts are the dialog's working copy
    QString m_folder;

    QTabWidget *m_tabs = nullptr;
    std::array<QRadioButton *, 2> m_optProp{};
    std::array<QLineEdit *, 2> m_txtFont{};
    QCheckBox *m_chkWordwrap = nullptr;
    QListWidget *m_lstExtensions = nullptr;
    QLineEdit *m_txtExt = nullptr;
    QPushButton *m_cmdAdd = nullptr;
    QPushButton *m_cmdRemove = nullptr;
    std::array<QRadioButton *, 2> m_optTLDs{};
    QCheckBox *m_chkShowTips = nullptr;
    QCheckBox *m_chkTroubles = nullptr;
    QCheckBox *m_chkSounds = nullptr;
    QCheckBox *m_chkUpdates = nullptr;
    QCheckBox *m_chkUsageStats = nullptr;
    QLabel *m_labLastCheck = nullptr;
    std::array<QRadioButton *, 4> m_optSpellingProvider{};
    TypedTextBox *m_typedText = nullptr;
};

} // namespace tolvo
