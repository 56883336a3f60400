// SPDX-License-Identifier: MIT
#include "search/ui/search_controls.h"

#include "search/ui/replacement_list.h"
#include "search/wildcard_translation.h"
#include "widgets/ElidedLabel.h"
#include "widgets/screen_fit.h"
#include "widgets/themed_icon.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QDialog>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>

namespace tolvo {

namespace {

constexpr int lettersOfAnswer = 44; // what most answers need

template <class Control>
Control *make(const char *name, const QString &caption, QWidget *parent) {
    auto *control = new Control(caption, parent);
    control->setObjectName(QString::fromLatin1(name));
    return control;
}

QToolButton *makePicture(const char *name, const QString &tip, QWidget *parent) {
    auto *picture = new QToolButton(parent);
    picture->setObjectName(QString::fromLatin1(name));
    picture->setAutoRaise(true);
    picture->setToolTip(tip);
    picture->setAccessibleName(tip);
    return picture;
}

QWidget *makePart(const char *name, QWidget *parent) {
    auto *part = new QWidget(parent);
    part->setObjectName(QString::fromLatin1(name));
    return part;
}

} // namespace

SearchControls::SearchControls(QDialog &window) : m_window(window), m_left(new QVBoxLayout) {
    TabStrip1 = new QTabBar(&window);
    TabStrip1->setObjectName(QStringLiteral("TabStrip1"));
    TabStrip1->setAccessibleName(QStringLiteral("Kind of search"));
    TabStrip1->setExpanding(false);
    for (const char *caption : {"Simple Search", "Wildcard Search", "Regular Expression"})
        TabStrip1->addTab(QString::fromLatin1(caption));

    m_left->addWidget(textRows());
    m_left->addWidget(directionRow());
    makeOptions();
    makeSpecialChars();
    makeWildcards();
    m_left->addWidget(fraOptions);
    m_left->addWidget(fraSpecialChars);
    m_left->addWidget(fraWildcards);
    lstReplacements = new ReplacementList(QStringLiteral("lstReplacements"), &window);
    m_left->addWidget(lstReplacements);
    m_left->addStretch(1);
    labFolded = make<QLabel>("labFolded", QString(), &window);
    labFolded->setWordWrap(true);
    labFolded->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_left->addWidget(labFolded);

    auto *body = new QHBoxLayout;
    body->addLayout(m_left, 1);
    body->addLayout(buttonColumn());
    makeWildcardHelp();
    body->addWidget(fraWildcardHelp);

    auto *all = new QVBoxLayout(&window);
    all->addWidget(TabStrip1);
    all->addLayout(body, 1);
}

void SearchControls::putHelpBelow() {
    if (m_left->indexOf(fraWildcardHelp) < 0)
        m_left->insertWidget(m_left->indexOf(fraWildcards) + 1, fraWildcardHelp);
}

QWidget *SearchControls::textRows() {
    QWidget *part = makePart("fraTexts", &m_window);
    auto *labSearch = make<QLabel>("labSearch", QStringLiteral("S&earch for:"), part);
    cmbSearchText = new SearchListEdit(QStringLiteral("cmbSearchText"), part);
    labReplace = make<QLabel>("labReplace", QStringLiteral("Replace w&ith:"), part);
    cmbReplaceText = new SearchListEdit(QStringLiteral("cmbReplaceText"), part);
    imgSwop = makePicture("imgSwop", QStringLiteral("Swop the two texts"), part);
    imgSwop->setIcon(themedIcon(QStringLiteral("swap")));
    labSearch->setBuddy(cmbSearchText);
    labReplace->setBuddy(cmbReplaceText);
    cmbSearchText->setAccessibleName(QStringLiteral("Search for"));
    cmbReplaceText->setAccessibleName(QStringLiteral("Replace with"));
    labAnswer = new ElidedLabel(QStringLiteral("labAnswer"), {});
    labForecast = new ElidedLabel(QStringLiteral("labForecast"), {});
    for (ElidedLabel *label : {labAnswer, labForecast}) // words that change don't change the window
        label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    auto *grid = new QGridLayout(part);
    grid->setContentsMargins({});
    grid->addWidget(labSearch, 0, 0);
    grid->addWidget(cmbSearchText, 0, 1);
    grid->addWidget(labAnswer, 1, 1, 1, 2);
    grid->addWidget(labReplace, 2, 0);
    grid->addWidget(cmbReplaceText, 2, 1);
    grid->addWidget(labForecast, 3, 1, 1, 2);
    grid->addWidget(imgSwop, 0, 3, 3, 1, Qt::AlignVCenter);
    const int room = roomOnScreen(m_window).width() * 3 / 8;
    grid->setColumnMinimumWidth(1, std::min(lettersOfAnswer * part->fontMetrics().averageCharWidth(), room));
    grid->setColumnStretch(1, 1);
    copyPart.emplace(*grid, 4, *part, room);
    for (SearchListEdit *list : {cmbSearchText, cmbReplaceText, copyPart->cmbForm}) {
        if (list->minimumSizeHint().width() > room)
            list->setMinimumWidth(room);
    }
    elementButtons = {
        new ElementButton(SearchText::Find, *cmbSearchText, QStringLiteral("Search for"), part),
        new ElementButton(SearchText::Replace, *cmbReplaceText, QStringLiteral("Replace with"), part),
        new ElementButton(SearchText::Form, *copyPart->cmbForm, QStringLiteral("Form"), part)};
    for (int i = 0; i < static_cast<int>(elementButtons.size()); ++i)
        grid->addWidget(elementButtons[static_cast<std::size_t>(i)], 2 * i, 2);
    // The swop button comes and goes without moving the lists.
    QSizePolicy keepsPlace = imgSwop->sizePolicy();
    keepsPlace.setRetainSizeWhenHidden(true);
    imgSwop->setSizePolicy(keepsPlace);
    return part;
}

QWidget *SearchControls::directionRow() {
    QWidget *part = makePart("fraDirection", &m_window);
    optSrchDown = make<QRadioButton>("optSrchDown", QStringLiteral("&Down"), part);
    optSrchUp = make<QRadioButton>("optSrchUp", QStringLiteral("&Up"), part);
    optSrchFromStart = make<QRadioButton>("optSrchFromStart", QStringLiteral("&From Start"), part);
    auto *row = new QHBoxLayout(part);
    row->setContentsMargins({});
    for (QRadioButton *option : {optSrchDown, optSrchUp, optSrchFromStart})
        row->addWidget(option);
    row->addStretch(1);
    chkReplaceAll = make<QCheckBox>("chkReplaceAll", QStringLiteral("Replace A&ll"), part);
    row->addWidget(chkReplaceAll);
    return part;
}

void SearchControls::makeOptions() {
    fraOptions = makePart("fraOptions", &m_window);
    chkMatchCase = make<QCheckBox>("chkMatchCase", QStringLiteral("&Match Case (Search)"), fraOptions);
    chkSmart = make<QCheckBox>("chkSmart", QStringLiteral("&Smart Replace"), fraOptions);
    chkSmart->setToolTip(QStringLiteral("The replacement takes the capitals of the text that it replaces"));
    chkWholeWord = make<QCheckBox>("chkWholeWord", QStringLiteral("&Whole words"), fraOptions);
    chkMarkMatches = make<QCheckBox>("chkMarkMatches", QStringLiteral("Mar&k in the text"), fraOptions);
    chkMarkMatches->setToolTip(QStringLiteral("Marks all that the search finds while this window is open"));
    auto *grid = new QGridLayout(fraOptions);
    grid->setContentsMargins({});
    grid->addWidget(chkMatchCase, 0, 0);
    grid->addWidget(chkSmart, 0, 1);
    grid->addWidget(chkWholeWord, 1, 0);
    grid->addWidget(chkMarkMatches, 1, 1);
    grid->setColumnStretch(1, 1);
}

void SearchControls::makeSpecialChars() {
    fraSpecialChars = makePart("fraSpecialChars", &m_window);
    chkSpecialChars =
        make<QCheckBox>("chkSpecialChars", QStringLiteral("Allow special &characters"), fraSpecialChars);
    auto *grid = new QGridLayout(fraSpecialChars);
    grid->setContentsMargins({});
    grid->addWidget(chkSpecialChars, 0, 0, 1, 4);
    const struct {
        const char *name;
        const char *caption;
        const char *text;
    } buttons[] = {{"cmdTab", "&Tab  \\t", "\\t"},
                   {"cmdNewline", "New&Line  \\n", "\\n"},
                   {"cmdHex", "He&x  \\x..", "\\x"},
                   {"cmdBackslash", "&Backslash  \\\\", "\\\\"},
                   {"cmdUnicode", "&Unicode  \\u....", "\\u"}};
    for (const auto &[name, caption, text] : buttons) {
        auto *button = make<QPushButton>(name, QString::fromLatin1(caption), fraSpecialChars);
        button->setAutoDefault(false);
        const int place = static_cast<int>(insertButtons.size());
        grid->addWidget(button, 1 + place / 3, place % 3);
        insertButtons.emplace_back(button, QString::fromLatin1(text));
    }
    grid->setColumnStretch(3, 1);
}

void SearchControls::makeWildcards() {
    fraWildcards = make<QGroupBox>("fraWildcards", QStringLiteral("Position of the match"), &m_window);
    auto *options = new QVBoxLayout;
    const std::pair<int, const char *> captions[] = {{4, "&1 Anywhere"},
                                                     {2, "&2 At start of line"},
                                                     {3, "&3 At end of line"},
                                                     {0, "&4 At start of word"},
                                                     {1, "&5 At end of word"}};
    for (const auto &[index, caption] : captions) {
        auto *option = make<QRadioButton>("", QString::fromLatin1(caption), fraWildcards);
        option->setObjectName(QStringLiteral("optWildcardOptions%1").arg(index));
        optWildcardOptions[static_cast<std::size_t>(index)] = option;
        options->addWidget(option);
    }
    const auto separatorList = [&](const char *name, const QStringList &items) {
        auto *list = new QComboBox(fraWildcards);
        list->setObjectName(QString::fromLatin1(name));
        list->setEditable(true);
        list->setInsertPolicy(QComboBox::NoInsert);
        list->setCompleter(nullptr);
        list->addItems(items);
        return list;
    };
    cmbDecimalSep = separatorList("cmbDecimalSep", {QStringLiteral("."), QStringLiteral(",")});
    cmbThousandsSep = separatorList("cmbThousandsSep", {QStringLiteral(","), QStringLiteral("."),
                                                        QStringLiteral("'"), QStringLiteral("space")});
    auto *separators = new QVBoxLayout;
    const auto addSeparator = [&](const char *name, const QString &caption, QComboBox *list) {
        auto *label = make<QLabel>(name, caption, fraWildcards);
        label->setBuddy(list);
        separators->addWidget(label);
        separators->addWidget(list);
    };
    addSeparator("labDecimalSep", QStringLiteral("Decimal se&parator:"), cmbDecimalSep);
    addSeparator("labThousandsSep", QStringLiteral("Th&ousands separator:"), cmbThousandsSep);
    separators->addStretch(1);
    auto *row = new QHBoxLayout(fraWildcards);
    row->addLayout(options);
    row->addStretch(1);
    row->addLayout(separators);
}

void SearchControls::makeWildcardHelp() {
    fraWildcardHelp = make<QGroupBox>("fraWildcardHelp", QString(), &m_window);
    // The text carries its line ends and its "&" in the written form of captions.
    QString help = wildcardHelp.toString();
    help.replace(QStringLiteral("\\n"), QStringLiteral("\n"))
        .replace(QStringLiteral("&&"), QStringLiteral("&"));
    auto *text = make<QLabel>("labWildcardHelp", help, fraWildcardHelp);
    text->setTextFormat(Qt::PlainText);
    text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto *layout = new QVBoxLayout(fraWildcardHelp);
    layout->addWidget(text);
    layout->addStretch(1);
}

QVBoxLayout *SearchControls::buttonColumn() {
    cmdSearch = make<QPushButton>("cmdSearch", QStringLiteral("Find &Next"), &m_window);
    cmdReplace = make<QPushButton>("cmdReplace", QStringLiteral("&Replace"), &m_window);
    cmdReplaceAll = make<QPushButton>("cmdReplaceAll", QStringLiteral("Find &All"), &m_window);
    cmdCopyMatches = makeCopyButton(m_window);
    cmdOK = make<QPushButton>("cmdOK", QStringLiteral("OK"), &m_window);
    cmdCancel = make<QPushButton>("cmdCancel", QStringLiteral("Cancel"), &m_window);
    cmdSearchHelp = make<QPushButton>("cmdSearchHelp", QStringLiteral("&Help"), &m_window);
    auto *column = new QVBoxLayout;
    for (QPushButton *button : {cmdSearch, cmdReplace, cmdReplaceAll, cmdCopyMatches, cmdOK, cmdCancel})
        column->addWidget(button);
    column->addStretch(1);
    column->addWidget(cmdSearchHelp);
    column->addLayout(moreRow());
    for (QPushButton *button : {cmdReplace, cmdReplaceAll, cmdCancel, cmdSearchHelp})
        button->setAutoDefault(false);
    return column;
}

QHBoxLayout *SearchControls::moreRow() {
    cmdMore = make<QPushButton>("cmdMore", QStringLiteral("&More     "), &m_window);
    cmdMore->setAutoDefault(false);
    cmdMore->setToolTip(QStringLiteral("Show more or less (Alt-V)"));
    picMoreArrowDown = makePicture("picMoreArrowDown", QStringLiteral("Show more"), &m_window);
    picMoreArrowDown->setArrowType(Qt::DownArrow);
    picMoreArrowUp = makePicture("picMoreArrowUp", QStringLiteral("Show less"), &m_window);
    picMoreArrowUp->setArrowType(Qt::UpArrow);
    for (QToolButton *arrow : {picMoreArrowDown, picMoreArrowUp})
        arrow->setFocusPolicy(Qt::NoFocus);
    auto *more = new QHBoxLayout;
    more->setSpacing(0);
    more->addWidget(cmdMore, 1);
    more->addWidget(picMoreArrowDown);
    more->addWidget(picMoreArrowUp);
    return more;
}

} // namespace tolvo
