// SPDX-License-Identifier: MIT
// The controls of the PowerButton editor.
#include "platform/desktop/plain_tool_tip.h"
#include "powerbuttons/example_buttons.h"
#include "powerbuttons/icon_geometry.h"
#include "powerbuttons/ui/frmPowerButton.h"
#include "powerbuttons/ui/icon_painter.h"
#include "powerbuttons/ui/step_list.h"
#include "widgets/themed_icon.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QList>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QShortcut>
#include <QToolButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace tolvo {

namespace {

/// A control that is hidden at times keeps its place, so that the others stay where they are.
void keepPlace(QWidget *widget) {
    QSizePolicy policy = widget->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    widget->setSizePolicy(policy);
}

QToolButton *makeImageButton(QWidget *parent, const char *name, const QString &toolTip, Qt::Key key,
                             int side) {
    auto *button = new QToolButton(parent);
    button->setObjectName(QLatin1StringView(name));
    button->setToolTip(toolTip);
    button->setAccessibleName(toolTip);
    button->setShortcut(QKeySequence(Qt::ALT | key));
    button->setIconSize(QSize(side, side));
    button->setFocusPolicy(Qt::StrongFocus);
    return button;
}

QLabel *makeLabel(QWidget *parent, const char *name) {
    auto *label = new QLabel(parent);
    label->setObjectName(QLatin1StringView(name));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

} // namespace

void frmPowerButton::makeTree(const Catalogue &tools) {
    m_tree = new QTreeWidget(this);
    m_tree->setObjectName(QStringLiteral("tvwTools"));
    m_tree->setAccessibleName(QStringLiteral("Tools"));
    m_tree->setHeaderHidden(true);
    m_tree->setMinimumHeight(fontMetrics().height() * 9);
    QTreeWidgetItem *group = nullptr;
    for (const ToolPtr &tool : tools.tools()) {
        if (tool->Name() == unknownToolName)
            continue;
        QTreeWidgetItem *item = nullptr;
        if (tool->isHeading() || group == nullptr)
            item = new QTreeWidgetItem(m_tree);
        else
            item = new QTreeWidgetItem(group);
        item->setText(0, tool->Name());
        item->setToolTip(0, plainToolTip(tool->Tooltip()));
        if (tool->isHeading())
            group = item;
        else
            item->setData(0, Qt::UserRole, tool->Token());
    }
    m_tree->installEventFilter(this);
    connect(m_tree, &QTreeWidget::itemClicked, this, [this](QTreeWidgetItem *item) { choose(item); });
}

void frmPowerButton::makeHead() {
    m_head = new QWidget(this);
    auto *label = new QLabel(QStringLiteral("Enter a name for your PowerButton:"), m_head);
    m_name = new QLineEdit(m_head);
    m_name->setObjectName(QStringLiteral("txtName"));
    m_name->installEventFilter(this);
    label->setBuddy(m_name);
    m_icon =
        makeImageButton(m_head, "picIcon", QStringLiteral("Click to edit icon (Alt-I)"), Qt::Key_I, iconSide);
    connect(m_icon, &QToolButton::clicked, this, &frmPowerButton::editIcon);
    QToolButton *trash = makeImageButton(
        m_head, "imgTrash", QStringLiteral("Destroy this PowerButton and Exit (Alt-X)"), Qt::Key_X, iconSide);
    trash->setIcon(themedIcon(QStringLiteral("trash"), QPalette::Button));
    connect(trash, &QToolButton::clicked, this, [this] {
        if (m_rules.destroy())
            accept();
    });
    auto *name = new QVBoxLayout;
    name->addWidget(label);
    name->addWidget(m_name);
    auto *layout = new QHBoxLayout(m_head);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(name, 1);
    layout->addWidget(m_icon, 0, Qt::AlignBottom);
    layout->addWidget(trash, 0, Qt::AlignBottom);
}

QPushButton *frmPowerButton::makeButton(const char *name, const QString &caption) {
    auto *button = new QPushButton(caption, this);
    button->setObjectName(QLatin1StringView(name));
    button->setAutoDefault(false);
    return button;
}

void frmPowerButton::makeAction() {
    m_frame = new QGroupBox(this);
    m_frame->setObjectName(QStringLiteral("frmAction"));
    m_tool = makeLabel(m_frame, "labTool");
    QFont large = m_tool->font();
    large.setPointSizeF(large.pointSizeF() * 1.3);
    large.setBold(true);
    m_tool->setFont(large);
    m_toolTip = makeLabel(m_frame, "labTooltip");
    m_toolTip->setMinimumHeight(fontMetrics().lineSpacing() * 2);
    m_toolTip->setAlignment(Qt::AlignTop);
    m_details = makeLabel(m_frame, "labDetails");
    m_details->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_details->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    m_details->setMargin(4);
    auto *box = new QScrollArea(m_frame);
    box->setWidget(m_details);
    box->setWidgetResizable(true);
    box->setFocusPolicy(Qt::NoFocus);
    box->setMinimumHeight(fontMetrics().lineSpacing() * 4);

    const auto option = [this](const char *name, const QString &caption, SettingsFrom value) {
        auto *button = new QRadioButton(caption, m_frame);
        button->setObjectName(QLatin1StringView(name));
        connect(button, &QRadioButton::clicked, this,
                [this, value] { m_rules.chooseOption(value), fillSteps(); });
        return button;
    };
    m_current = option("optCurrent", QStringLiteral("&Use current settings"), SettingsFrom::Current);
    m_current->setToolTip(QStringLiteral("Run with the settings that the tool was used with last"));
    m_prompt = option("optPrompt", QStringLiteral("&Prompt for settings"), SettingsFrom::Prompt);
    m_prompt->setToolTip(QStringLiteral("Ask for the settings each time"));
    m_custom = option("optCustom", QStringLiteral("&Custom settings:"), SettingsFrom::Custom);
    m_custom->setToolTip(QStringLiteral("Run with the settings below"));
    m_askSettings = makeButton("cmdSettings", QStringLiteral("&Settings..."));
    connect(m_askSettings, &QPushButton::clicked, this, [this] { m_rules.chooseSettings(), fill(); });

    auto *settings = new QHBoxLayout;
    settings->addWidget(m_custom);
    settings->addStretch();
    settings->addWidget(m_askSettings);
    auto *layout = new QVBoxLayout(m_frame);
    layout->addWidget(m_tool);
    layout->addWidget(m_toolTip);
    layout->addWidget(m_current);
    layout->addWidget(m_prompt);
    layout->addLayout(settings);
    layout->addWidget(box, 1);
}

void frmPowerButton::makeMenus(const Catalogue &tools) {
    m_addMenu = new QMenu(this);
    m_addMenu->setObjectName(QStringLiteral("mnuAddAction"));
    const auto entry = [this](const char *name, const QString &caption, void (EditorRules::*add)()) {
        QAction *action = m_addMenu->addAction(caption, this, [this, add] { (m_rules.*add)(), fill(); });
        action->setObjectName(QLatin1StringView(name));
    };
    entry("mnuAddBefore", QStringLiteral("Add before"), &EditorRules::addBefore);
    entry("mnuAddAfter", QStringLiteral("Add after"), &EditorRules::addAfter);
    entry("mnuAddAtEnd", QStringLiteral("Add at end"), &EditorRules::addAtEnd);

    m_examples = makeButton("cmdLoadExample", QStringLiteral("Load exa&mple"));
    m_examples->setToolTip(QStringLiteral("Begin with a ready-made PowerButton"));
    auto *examples = new QMenu(m_examples);
    for (const auto &example : exampleButtons(tools))
        examples->addAction(toQIcon(iconOf(*example)), example->Name, this,
                            [this, example] { loadExample(*example); });
    m_examples->setMenu(examples);
    keepPlace(m_examples);
}

QWidget *frmPowerButton::makeFoot() {
    m_left = makeButton("cmdLeft", QStringLiteral("Previous Action"));
    m_left->setShortcut(QKeySequence(Qt::ALT | Qt::Key_Left));
    m_left->setToolTip(QStringLiteral("Previous Action (Alt-Left)"));
    m_right = makeButton("cmdRight", QStringLiteral("Next Action"));
    m_right->setShortcut(QKeySequence(Qt::ALT | Qt::Key_Right));
    m_right->setToolTip(QStringLiteral("Next Action (Alt-Right)"));
    m_add = makeButton("cmdAddAction", QStringLiteral("&Add Action"));
    m_delete = makeButton("cmdDeleteAction", QStringLiteral("&Delete Action"));
    connect(m_left, &QPushButton::clicked, this, [this] { m_rules.goLeft(), fill(); });
    connect(m_right, &QPushButton::clicked, this, [this] { m_rules.goRight(), fill(); });
    connect(m_add, &QPushButton::clicked, this, [this] {
        if (m_rules.mayAdd())
            m_addMenu->popup(m_add->mapToGlobal(QPoint(0, m_add->height())));
    });
    connect(m_delete, &QPushButton::clicked, this, [this] { m_rules.deleteAction(), fill(); });

    auto *foot = new QWidget(this);
    m_foot = new QGridLayout(foot);
    m_foot->setContentsMargins(0, 0, 0, 0);
    for (QPushButton *button : {m_left, m_right, m_add, m_delete})
        keepPlace(button);
    return foot;
}

void frmPowerButton::arrange(QWidget *foot) {
    QPushButton *help = makeButton("cmdHelp", QStringLiteral("&Help"));
    QPushButton *apply = makeButton("cmdApply", QStringLiteral("Save Changes"));
    QPushButton *ok = makeButton("cmdOK", QStringLiteral("OK"));
    QPushButton *cancel = makeButton("cmdCancel", QStringLiteral("Cancel"));
    ok->setDefault(true);
    connect(help, &QPushButton::clicked, this,
            [this] { m_boxes.show({QStringLiteral("Help is not implemented yet")}); });
    connect(apply, &QPushButton::clicked, this, [this] { save(), fill(); });
    connect(ok, &QPushButton::clicked, this, [this] {
        if (save())
            accept();
    });
    connect(cancel, &QPushButton::clicked, this, &frmPowerButton::reject);

    QList<QWidget *> order{
        m_tree,        m_name,     m_icon,   findChild<QWidget *>(QStringLiteral("imgTrash")),
        m_steps,       m_current,  m_prompt, m_custom,
        m_askSettings, m_left,     m_right,  m_add,
        m_delete,      m_examples, apply,    ok,
        cancel,        help};
    for (qsizetype i = 1; i < order.size(); ++i)
        setTabOrder(order.at(i - 1), order.at(i));

    auto *right = new QVBoxLayout;
    right->addWidget(m_head);
    right->addWidget(m_frame, 1);
    right->addWidget(foot);
    m_toolColumn = new QVBoxLayout;
    m_toolColumn->setSpacing(12);
    m_toolColumn->addWidget(m_tree, 3);
    m_columns = new QHBoxLayout;
    m_columns->setSpacing(12);
    m_columns->addLayout(m_toolColumn, 3);
    m_columns->addLayout(right, 4);
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(help);
    buttons->addWidget(m_examples);
    buttons->addStretch();
    buttons->addWidget(apply);
    buttons->addWidget(ok);
    buttons->addWidget(cancel);
    auto *layout = new QVBoxLayout(this);
    layout->setSpacing(12);
    layout->addLayout(m_columns, 1);
    layout->addLayout(buttons);
}

} // namespace tolvo
