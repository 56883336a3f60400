// SPDX-License-Identifier: MIT
// The editor of one PowerButton: shows the EditorRules.
#pragma once

#include "powerbuttons/editor_rules.h"

#include <QDialog>
#include <QElapsedTimer>
#include <QStringList>

class QGridLayout;
class QGroupBox;
class QHBoxLayout;
class QKeyEvent;
class QLabel;
class QLineEdit;
class QMenu;
class QPushButton;
class QRadioButton;
class QToolButton;
class QTreeWidget;
class QTreeWidgetItem;
class QVBoxLayout;

namespace tolvo {

class EffectView;
class StepEffects;
class StepList;
enum class StepCommand;

/// One object serves any number of editings: init(), exec(). All but the settings of an Action that runs
/// another PowerButton are asked through `settings`.
class frmPowerButton : public QDialog, private ActionSettings {
    Q_OBJECT
  public:
    frmPowerButton(CPowerButtonCollection &buttons, CPowerButtonMethods &methods, const Catalogue &tools,
                   MessageBoxes &boxes, ActionSettings &settings, QWidget *parent = nullptr);

    /// Begins with the button of an index from 0.
    void init(int index);
    /// Shows the effect of the current step below the form. `effects` must outlive the window.
    void showEffectsOf(StepEffects &effects);
    void done(int result) override;
    /// Cancel and the close box: everything since the last save is taken back.
    void reject() override;

  protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

  private:
    std::optional<QString> getSettings(const QString &token, const QString &details) override;

    void makeTree(const Catalogue &tools);
    void makeHead();
    void makeAction();
    void makeMenus(const Catalogue &tools);
    QWidget *makeFoot();
    void arrange(QWidget *foot);
    QWidget *makeSteps();
    QPushButton *makeButton(const char *name, const QString &caption);

    void fill();
    void fillSteps();
    void askForEffect();
    void doWithStep(StepCommand command);
    /// With large letters or on a small screen the steps stand below the tools.
    void fitToScreen();
    void arrangeFor(bool narrow);
    void showToolInTree();
    void choose(const QTreeWidgetItem *item);
    /// True for a key of the tree that chooses, or that goes on with the name that is being typed.
    bool treeKey(const QKeyEvent &key);
    void editIcon();
    bool save();
    void loadExample(const CPowerButton &example);

    CPowerButtonCollection &m_buttons;
    MessageBoxes &m_boxes;
    ActionSettings &m_settings;
    EditorRules m_rules;
    QStringList m_recentCharacters;
    QElapsedTimer m_sinceTyped; ///< since the last letter that was typed into the tree

    QTreeWidget *m_tree = nullptr;
    StepEffects *m_effects = nullptr;
    EffectView *m_effectView = nullptr;
    StepList *m_steps = nullptr;
    QWidget *m_stepsBox = nullptr;
    QHBoxLayout *m_columns = nullptr;
    QVBoxLayout *m_toolColumn = nullptr;
    QGridLayout *m_foot = nullptr;
    QWidget *m_head = nullptr;
    QLineEdit *m_name = nullptr;
    QToolButton *m_icon = nullptr;
    QGroupBox *m_frame = nullptr;
    QLabel *m_tool = nullptr;
    QLabel *m_toolTip = nullptr;
    QLabel *m_details = nullptr;
    QRadioButton *m_prompt = nullptr;
    QRadioButton *m_current = nullptr;
    QRadioButton *m_custom = nullptr;
    QPushButton *m_askSettings = nullptr;
    QPushButton *m_left = nullptr;
    QPushButton *m_right = nullptr;
    QPushButton *m_add = nullptr;
    QPushButton *m_delete = nullptr;
    QPushButton *m_examples = nullptr;
    QMenu *m_addMenu = nullptr;
};

} // namespace tolvo
