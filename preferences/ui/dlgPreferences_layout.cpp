// SPDX-License-Identifier: MIT
// The pages of the Options dialog.
#include "preferences/ui/dlgPreferences.h"

#include "platform/message_box.h"
#include "preferences/ui/TypedTextBox.h"
#include "widgets/FoldingChoice.h"
#include "widgets/themed_icon.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QToolButton>
#include <QVBoxLayout>
#include <QValidator>
#include <algorithm>

namespace tolvo {

namespace {

template <class Control>
Control *named(Control *control, const QString &name) {
    control->setObjectName(name);
    return control;
}

template <class Control>
Control *make(const char *name, const QString &caption) {
    return named(new Control(caption), QLatin1StringView(name));
}

QToolButton *imageButton(const QString &name, const QString &icon, const QString &tip,
                         const QString &accessibleName) {
    auto *button = named(new QToolButton, name);
    button->setIcon(themedIcon(icon));
    button->setToolTip(tip);
    button->setAccessibleName(accessibleName);
    button->setAutoRaise(true);
    return button;
}

/// A blank and a full stop are no part of an extension: they are dropped however they come in, and the caret
/// stays between the characters where it was.
class ExtensionValidator : public QValidator {
  public:
    using QValidator::QValidator;

    State validate(QString &text, int &caret) const override {
        const auto isDropped = [](QChar unit) { return unit == u' ' || unit == u'.'; };
        caret -= static_cast<int>(std::count_if(text.cbegin(), text.cbegin() + caret, isDropped));
        text.removeIf(isDropped);
        return Acceptable;
    }
};

QLabel *note(const QString &text) {
    auto *label = new QLabel(text);
    label->setWordWrap(true);
    QFont small = label->font();
    small.setPointSizeF(small.pointSizeF() * 0.9);
    label->setFont(small);
    return label;
}

} // namespace

dlgPreferences::dlgPreferences(OptionsActions &actions, MessageBoxes &boxes, QWidget *parent)
    : QDialog(parent), m_actions(actions), m_boxes(boxes) {
    setObjectName(QStringLiteral("dlgPreferences"));
    setWindowTitle(QStringLiteral("Options"));
    m_tabs = named(new QTabWidget, QStringLiteral("SSTab1"));
    m_tabs->addTab(displayPage(), QStringLiteral("Display"));
    m_tabs->addTab(extensionsPage(), QStringLiteral("Extensions"));
    m_tabs->addTab(generalPage(), QStringLiteral("General"));
    m_tabs->addTab(spellingPage(), QStringLiteral("Spelling"));
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_tabs, 1);
    layout->addWidget(buttonRow());
    findChild<QPushButton *>(QStringLiteral("OKButton"))->setDefault(true); // works only inside the dialog
}

QWidget *dlgPreferences::displayPage() {
    auto *page = new QWidget;
    auto *grid = new QGridLayout;
    const std::array<QString, 2> captions{QStringLiteral("Use &Proportional font"),
                                          QStringLiteral("Use &Fixed font")};
    const std::array<QString, 2> labels{QStringLiteral("Proportional Font:"),
                                        QStringLiteral("Fixed-width Font:")};
    auto *fontBox = new QGroupBox(QStringLiteral("Font of the text"));
    for (int i = 0; i < 2; ++i) {
        const auto at = static_cast<std::size_t>(i);
        m_optProp[at] =
            named(new FoldingChoice<QRadioButton>(captions[at]), QStringLiteral("optProp_%1").arg(i));
        m_txtFont[at] = named(new QLineEdit, QStringLiteral("txtFont_%1").arg(i));
        m_txtFont[at]->setReadOnly(true);
        m_txtFont[at]->setAccessibleName(labels[at]);
        auto *choose = imageButton(
            QStringLiteral("Image1_%1").arg(i), QStringLiteral("choose-font"), QStringLiteral("Choose font"),
            i == 0 ? QStringLiteral("Choose proportional font") : QStringLiteral("Choose fixed-width font"));
        connect(choose, &QToolButton::clicked, this, [this, i] { chooseFont(i); });
        grid->addWidget(m_optProp[at], i * 2, 0, 1, 3);
        auto *label = new QLabel(labels[at]);
        label->setIndent(22);
        grid->addWidget(label, i * 2 + 1, 0);
        grid->addWidget(m_txtFont[at], i * 2 + 1, 1);
        grid->addWidget(choose, i * 2 + 1, 2);
    }
    grid->setColumnStretch(1, 1);
    grid->setVerticalSpacing(8);
    fontBox->setLayout(grid);
    m_chkWordwrap = make<FoldingChoice<QCheckBox>>("chkWordwrap", QStringLiteral("Word wrap (display only)"));
    auto *layout = new QVBoxLayout(page);
    layout->addWidget(fontBox);
    layout->addWidget(m_chkWordwrap);
    layout->addStretch(1);
    return page;
}

QWidget *dlgPreferences::extensionsPage() {
    auto *page = new QWidget;
    auto *extensions = new QGroupBox(QStringLiteral("File extensions"));
    m_lstExtensions = named(new QListWidget, QStringLiteral("lstExtensions"));
    m_lstExtensions->setAccessibleName(QStringLiteral("File extensions"));
    m_txtExt = named(new QLineEdit, QStringLiteral("txtExt"));
    m_txtExt->setAccessibleName(QStringLiteral("File extension"));
    m_txtExt->setPlaceholderText(QStringLiteral("for instance: xyz"));
    m_cmdAdd = make<QPushButton>("cmdAdd", QStringLiteral("A&dd"));
    m_cmdRemove = make<QPushButton>("cmdRemove", QStringLiteral("&Remove"));
    m_cmdAdd->setEnabled(false);
    m_cmdRemove->setEnabled(false);
    m_txtExt->setValidator(new ExtensionValidator(m_txtExt));
    m_txtExt->installEventFilter(this);
    connect(m_txtExt, &QLineEdit::textChanged, this, &dlgPreferences::extensionTyped);
    connect(m_cmdAdd, &QPushButton::clicked, this, &dlgPreferences::addExtension);
    connect(m_cmdRemove, &QPushButton::clicked, this, &dlgPreferences::removeExtension);
    connect(m_lstExtensions, &QListWidget::currentRowChanged, this,
            [this](int row) { m_cmdRemove->setEnabled(row >= 0); });
    auto *grid = new QGridLayout(extensions);
    grid->addWidget(
        note(QStringLiteral(
            "Words that end in one of these count as file names: their full stop ends no sentence.")),
        0, 0, 1, 2);
    grid->addWidget(m_txtExt, 1, 0);
    grid->addWidget(m_cmdAdd, 1, 1);
    grid->addWidget(m_lstExtensions, 2, 0, 2, 1);
    grid->addWidget(m_cmdRemove, 2, 1);
    grid->setRowStretch(3, 1);

    auto *domains = new QGroupBox(QStringLiteral("Internet addresses"));
    m_optTLDs[0] = make<FoldingChoice<QRadioButton>>(
        "optTLDs_0", QStringLiteral("Use full list of Internet Top Level Domains"));
    m_optTLDs[1] = make<FoldingChoice<QRadioButton>>(
        "optTLDs_1", QStringLiteral("Use list of Internet TLDs excluding English words (recommended)"));
    auto *domainLayout = new QVBoxLayout(domains);
    domainLayout->addWidget(m_optTLDs[0]);
    domainLayout->addWidget(m_optTLDs[1]);

    auto *layout = new QVBoxLayout(page);
    layout->addWidget(extensions, 1);
    layout->addWidget(domains);
    return page;
}

QWidget *dlgPreferences::generalPage() {
    auto *page = new QWidget;
    m_chkShowTips = make<FoldingChoice<QCheckBox>>("chkShowTips", QStringLiteral("Show &Tips at startup"));
    m_chkTroubles = make<FoldingChoice<QCheckBox>>(
        "chkTroubles", QStringLiteral("&Point out what looks wrong with a fresh text"));
    m_chkSounds = make<FoldingChoice<QCheckBox>>("chkSounds", QStringLiteral("Enable &sounds"));
    m_chkUpdates =
        make<FoldingChoice<QCheckBox>>("chkUpdates", QStringLiteral("&Check weekly for product updates"));
    m_chkUsageStats =
        make<FoldingChoice<QCheckBox>>("chkUsageStats", QStringLiteral("&Upload usage statistics"));
    m_labLastCheck = named(new QLabel, QStringLiteral("labLastCheck"));
    m_labLastCheck->setWordWrap(true);
    const auto button = [this](const char *name, const QString &caption, auto action) {
        auto *result = make<QPushButton>(name, caption);
        connect(result, &QPushButton::clicked, this, action);
        return result;
    };
    auto *updates = new QGroupBox(QStringLiteral("Updates and statistics"));
    auto *grid = new QGridLayout(updates);
    grid->addWidget(m_chkUpdates, 0, 0);
    grid->addWidget(button("cmdCheckNow", QStringLiteral("Check now"), [this] { m_actions.checkNow(); }), 0,
                    1);
    grid->addWidget(m_labLastCheck, 1, 0, 1, 2);
    grid->addWidget(m_chkUsageStats, 2, 0);
    grid->addWidget(
        button("cmdViewStats", QStringLiteral("View statistics..."), [this] { m_actions.viewStatistics(); }),
        2, 1);
    grid->addWidget(
        note(QStringLiteral(
            "Only anonymous usage statistics are gathered and used to improve the product. No personally "
            "identifiable information or personal data are collected.")),
        3, 0, 1, 2);
    grid->setColumnStretch(0, 1);

    auto *files = new QGroupBox(QStringLiteral("Export and import"));
    auto *fileLayout = new QVBoxLayout(files);
    fileLayout->addWidget(button("cmdExport", QStringLiteral("Export Preferences and PowerButtons..."),
                                 [this] { exportPrefs(false); }));
    fileLayout->addWidget(
        button("cmdExportPB", QStringLiteral("Export PowerButtons only..."), [this] { exportPrefs(true); }));
    fileLayout->addWidget(
        button("cmdImport", QStringLiteral("Import Preferences..."), [this] { cmdImport_Click(); }));

    auto *layout = new QVBoxLayout(page);
    layout->addWidget(m_chkShowTips);
    layout->addWidget(m_chkTroubles);
    layout->addWidget(m_chkSounds);
    layout->addWidget(updates);
    layout->addWidget(files);
    layout->addStretch(1);
    return page;
}

QWidget *dlgPreferences::spellingPage() {
    auto *page = new QWidget;
    const std::array<QString, 4> captions{QStringLiteral("Microsoft Word"), QStringLiteral("Hunspell"),
                                          QStringLiteral("After the Deadline"),
                                          QStringLiteral("Ginger - Grammar, Spelling and Proofreading")};
    auto *box = new QGroupBox(QStringLiteral("Spelling and grammar by"));
    auto *grid = new QGridLayout(box);
    grid->setColumnStretch(0, 1);
    grid->setVerticalSpacing(8);
    for (int i = 0; i < 4; ++i) {
        const auto at = static_cast<std::size_t>(i);
        m_optSpellingProvider[at] = named(new FoldingChoice<QRadioButton>(captions[at]),
                                          QStringLiteral("optSpellingProvider_%1").arg(i));
        auto *browse =
            imageButton(i == 0 ? QStringLiteral("imgBrowse") : QStringLiteral("imgBrowse_%1").arg(i),
                        QStringLiteral("options"), QStringLiteral("Configure"),
                        QStringLiteral("Configure %1").arg(captions[at]));
        connect(browse, &QToolButton::clicked, this, [this, i] { m_actions.configureProvider(i); });
        grid->addWidget(m_optSpellingProvider[at], i, 0);
        grid->addWidget(browse, i, 1);
    }
    auto *ownWords = make<QPushButton>("cmdOwnWords", QStringLiteral("&Your own words..."));
    connect(ownWords, &QPushButton::clicked, this, [this] { m_actions.editOwnWords(); });
    auto *layout = new QVBoxLayout(page);
    layout->addWidget(box);
    layout->addWidget(note(QStringLiteral(
        "After the Deadline sends the text to a web service. The other providers leave it on this "
        "computer.")));
    m_typedText = new TypedTextBox;
    layout->addWidget(m_typedText);
    layout->addSpacing(fontMetrics().lineSpacing());
    layout->addWidget(ownWords, 0, Qt::AlignLeft);
    layout->addStretch(1);
    return page;
}

QWidget *dlgPreferences::buttonRow() {
    auto *row = new QWidget;
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    auto *help = make<QPushButton>("cmdHelp", QStringLiteral("&Help"));
    auto *ok = make<QPushButton>("OKButton", QStringLiteral("OK"));
    auto *cancel = make<QPushButton>("CancelButton", QStringLiteral("Cancel"));
    auto *apply = make<QPushButton>("cmdApply", QStringLiteral("&Apply"));
    connect(help, &QPushButton::clicked, this,
            [this] { m_boxes.show({.text = QStringLiteral("Help is not implemented yet")}); });
    connect(ok, &QPushButton::clicked, this, [this] {
        cmdApply_Click();
        accept();
    });
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(apply, &QPushButton::clicked, this, &dlgPreferences::cmdApply_Click);
    layout->addWidget(help);
    layout->addStretch(1);
    for (QPushButton *button : {ok, cancel, apply})
        layout->addWidget(button);
    return row;
}

} // namespace tolvo
