// SPDX-License-Identifier: MIT
// The checking dialog. Its rules are those of ErrorWalk; here are its controls.
#pragma once

#include "spelling/Proofing.h"
#include "spelling/spelling_services.h"
#include "spelling/spelling_walk.h"

#include <QDialog>
#include <QStringList>
#include <functional>
#include <memory>

class QBoxLayout;
class QCheckBox;
class QLabel;
class QLayout;
class QLineEdit;
class QListWidget;
class QPushButton;

namespace tolvo {

class MarkedTextView;

class dlgSpelling : public QDialog {
  public:
    explicit dlgSpelling(const SpellingServices &services, QWidget *parent = nullptr);
    ~dlgSpelling() override;

    /// Where suggestions are found before the user gets to their words; without one each step finds its own.
    void setWorker(BackgroundWorker &worker) { m_worker = &worker; }

    /// As SpellingWalk::CheckSpelling.
    bool CheckSpelling(ProofingHost &host, QString &text, int LangID, bool grammar);

    /// The close box and Esc are Cancel, after a question if there are changes.
    void reject() override;

  protected:
    void showEvent(QShowEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

  private:
    QLayout *layOutText();
    QLayout *layOutButtons();
    QPushButton *addButton(QBoxLayout &column, const QString &name, const QString &caption);
    QPushButton *addRule(QBoxLayout &column, const QString &name, const QString &caption,
                         void (ErrorWalk::*rule)());
    void connectEntry();
    void arrangeTabOrder();
    void act(const QString &name, const std::function<void(ErrorWalk &)> &rule);
    void refresh();
    void setUsable(QWidget &control, bool usable);
    void proposeNextStep();
    void tellMistake();
    void refreshSuggestions(const WalkControls &controls);

    const SpellingServices &m_services;
    BackgroundWorker *m_worker = nullptr;
    std::unique_ptr<ErrorWalk> m_walk; ///< while a check runs
    QStringList m_runWords;            ///< known for as long as the program runs
    bool m_refreshing = false;

    MarkedTextView *rtbText;
    QLabel *labErrorType;
    QLabel *labMistake;
    QLabel *labErrorDescription;
    QLabel *labPlace;
    QListWidget *lstSuggestions;
    QLineEdit *txtCorrection;
    QCheckBox *chkSmartReplace;
    QPushButton *cmdIgnore = nullptr;
    QPushButton *cmdChange = nullptr;
    QPushButton *cmdChangeAll = nullptr;
    QPushButton *cmdDelete = nullptr;
    QPushButton *cmdUndo = nullptr;
    QPushButton *m_proposed = nullptr; ///< what Enter presses
};

} // namespace tolvo
