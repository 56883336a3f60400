// SPDX-License-Identifier: MIT
#include "powerbuttons/ui/dlgPickCharacter.h"

#include "powerbuttons/icon_geometry.h"
#include "powerbuttons/ui/character_index.h"
#include "powerbuttons/ui/character_model.h"
#include "widgets/screen_fit.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFontComboBox>
#include <QFormLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QStyle>
#include <QTableView>
#include <QVBoxLayout>
#include <algorithm>

namespace tolvo {

namespace {

constexpr int mostColumns = 16;
constexpr int visibleRows = 8;
constexpr int mostFound = 1024;
/// Symbols that suit an icon: what the picker opens with.
constexpr char32_t firstShown = 0x2600;

int sideOfCell(const QWidget &window) {
    return window.fontMetrics().height() * 9 / 5;
}

/// As many as the screen has room for, beside bars that scroll the table and the window.
int columnsFor(const QWidget &window) {
    const auto measure = [&](QStyle::PixelMetric metric) { return window.style()->pixelMetric(metric); };
    const int bars =
        2 * (measure(QStyle::PM_ScrollBarExtent) + measure(QStyle::PM_ScrollView_ScrollBarSpacing));
    const int beside = bars + measure(QStyle::PM_LayoutLeftMargin) + measure(QStyle::PM_LayoutRightMargin) +
                       4 * measure(QStyle::PM_DefaultFrameWidth);
    const int room = (roomOnScreen(window).width() - beside) / sideOfCell(window);
    return std::clamp(room, 1, mostColumns);
}

QTableView *makeTable(QWidget *parent, CharacterModel *model, int cell, int rows) {
    auto *table = new QTableView(parent);
    table->setModel(model);
    table->horizontalHeader()->hide();
    table->verticalHeader()->hide();
    table->horizontalHeader()->setMinimumSectionSize(cell);
    table->horizontalHeader()->setDefaultSectionSize(cell);
    table->verticalHeader()->setMinimumSectionSize(cell);
    table->verticalHeader()->setDefaultSectionSize(cell);
    table->setSelectionMode(QAbstractItemView::SingleSelection);
    table->setTabKeyNavigation(false);
    table->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    const bool scrolls = rows > 1;
    table->setVerticalScrollBarPolicy(scrolls ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
    const int bar = scrolls ? table->verticalScrollBar()->sizeHint().width() : 0;
    table->setFixedWidth(model->columnCount() * cell + bar + 2 * table->frameWidth());
    const int height = rows * cell + 2 * table->frameWidth();
    scrolls ? table->setMinimumHeight(height) : table->setFixedHeight(height);
    return table;
}

} // namespace

dlgPickCharacter::dlgPickCharacter(const QString &fontName, QStringList &recent, QWidget *parent)
    : QDialog(parent), m_recent(recent), m_font(new QFontComboBox(this)), m_find(new QLineEdit(this)),
      m_block(new QComboBox(this)), m_characters(new CharacterModel(columnsFor(*this), this)),
      m_recentCharacters(new CharacterModel(columnsFor(*this), this)), m_large(new QLabel(this)),
      m_name(new QLabel(this)), m_chosen(new QLineEdit(this)) {
    setObjectName(QStringLiteral("dlgPickCharacter"));
    setWindowTitle(QStringLiteral("Choose Symbol"));
    makeTables();
    arrange();

    m_font->setCurrentFont(QFont(fontName));
    int current = 0;
    for (const CharacterBlock &block : characterBlocks()) {
        if (block.first <= firstShown)
            current = m_block->count();
        m_block->addItem(block.name, QPoint(static_cast<int>(block.first), static_cast<int>(block.last)));
    }
    m_block->setCurrentIndex(current);
    connect(m_block, &QComboBox::currentIndexChanged, this, [this] { m_find->clear(), find(); });
    connect(m_find, &QLineEdit::textChanged, this, &dlgPickCharacter::find);
    connect(m_font, &QFontComboBox::currentFontChanged, this, &dlgPickCharacter::showFont);
    connect(m_chosen, &QLineEdit::textEdited, this,
            [this](const QString &text) { m_chosen->setText(firstCharacters(text, iconCharacters)); });
    showFont();
    find();
    m_find->setFocus();
}

void dlgPickCharacter::makeTables() {
    const int cell = sideOfCell(*this);
    m_table = makeTable(this, m_characters, cell, visibleRows);
    m_table->setObjectName(QStringLiteral("tblCharacters"));
    m_table->setAccessibleName(QStringLiteral("Characters"));
    m_recentTable = makeTable(this, m_recentCharacters, cell, 1);
    m_recentTable->setObjectName(QStringLiteral("tblRecent"));
    m_recentTable->setAccessibleName(QStringLiteral("Recent characters"));
    QList<char32_t> recent;
    for (const QString &character :
         m_recent.first(std::min<qsizetype>(m_recent.size(), m_recentCharacters->columnCount())))
        recent.append(static_cast<char32_t>(character.toUcs4().value(0)));
    m_recentCharacters->setCharacters(recent);
    // The table would make it current, and with that the one to take, as soon as the focus passes through.
    m_recentTable->selectionModel()->setCurrentIndex(m_recentCharacters->index(0, 0),
                                                     QItemSelectionModel::NoUpdate);
    for (QTableView *table : {m_table, m_recentTable}) {
        table->installEventFilter(this);
        connect(table, &QTableView::doubleClicked, this,
                [this](const QModelIndex &index) { take(index.data(Qt::DisplayRole).toString()); });
        connect(table->selectionModel(), &QItemSelectionModel::currentChanged, this,
                &dlgPickCharacter::showCharacter);
        connect(table, &QTableView::clicked, this, &dlgPickCharacter::showCharacter);
    }
}

void dlgPickCharacter::arrange() {
    m_font->setObjectName(QStringLiteral("cmbFont"));
    m_find->setObjectName(QStringLiteral("txtFind"));
    m_find->setPlaceholderText(QStringLiteral("Name or code: arrow, mail, 2192"));
    m_find->setClearButtonEnabled(true);
    m_block->setObjectName(QStringLiteral("cmbBlock"));
    m_chosen->setObjectName(QStringLiteral("txtChosen"));
    m_chosen->setPlaceholderText(QStringLiteral("Up to three: double-click, or press Enter, to add"));
    m_name->setObjectName(QStringLiteral("labCharacter"));
    m_name->setWordWrap(true);
    m_large->setAlignment(Qt::AlignCenter);
    m_large->setFixedSize(fontMetrics().height() * 4, fontMetrics().height() * 3);
    m_large->setFrameShape(QFrame::StyledPanel);
    m_large->setTextFormat(Qt::PlainText);
    m_name->setTextFormat(Qt::PlainText);

    auto *form = new QFormLayout;
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form->addRow(QStringLiteral("&Find:"), m_find);
    form->addRow(QStringLiteral("&Block:"), m_block);
    form->addRow(QStringLiteral("F&ont:"), m_font);
    auto *current = new QHBoxLayout;
    current->addWidget(m_large);
    current->addWidget(m_name, 1);
    auto *recentLabel = new QLabel(QStringLiteral("&Recent:"), this);
    recentLabel->setBuddy(m_recentTable);
    auto *chosen = new QFormLayout;
    chosen->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    chosen->addRow(QStringLiteral("&Chosen:"), m_chosen);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Ok)->setObjectName(QStringLiteral("OKButton"));
    buttons->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("CancelButton"));
    connect(buttons, &QDialogButtonBox::accepted, this, &dlgPickCharacter::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &dlgPickCharacter::reject);

    auto *layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(m_table, 1);
    layout->addLayout(current);
    layout->addWidget(recentLabel);
    layout->addWidget(m_recentTable);
    layout->addLayout(chosen);
    layout->addWidget(buttons);
    recentLabel->setVisible(!m_recent.isEmpty());
    m_recentTable->setVisible(!m_recent.isEmpty());
}

void dlgPickCharacter::find() {
    if (m_find->text().trimmed().isEmpty()) {
        const QPoint block = m_block->currentData().toPoint();
        m_characters->setCharacters(charactersOf(
            {m_block->currentText(), static_cast<char32_t>(block.x()), static_cast<char32_t>(block.y())}));
    } else {
        m_characters->setCharacters(findCharacters(m_find->text(), mostFound));
    }
    m_table->scrollToTop();
    m_table->setCurrentIndex(m_characters->index(0, 0));
    showCharacter(m_table->currentIndex());
}

void dlgPickCharacter::showFont() {
    QFont shown = m_font->currentFont();
    shown.setPixelSize(fontMetrics().height() * 11 / 10);
    m_characters->setFont(shown);
    m_recentCharacters->setFont(shown);
    m_chosen->setFont(QFont(shown.family(), font().pointSize()));
    shown.setPixelSize(fontMetrics().height() * 2);
    m_large->setFont(shown);
}

void dlgPickCharacter::showCharacter(const QModelIndex &index) {
    m_large->setText(index.data(Qt::DisplayRole).toString());
    m_name->setText(index.isValid() && !m_large->text().isEmpty() ? index.data(Qt::ToolTipRole).toString()
                                                                  : QStringLiteral("No such character"));
}

void dlgPickCharacter::take(const QString &character) {
    m_chosen->setText(firstCharacters(m_chosen->text() + character, iconCharacters));
}

bool dlgPickCharacter::eventFilter(QObject *watched, QEvent *event) {
    auto *table = qobject_cast<QTableView *>(watched);
    if (table != nullptr && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space) {
            take(table->currentIndex().data(Qt::DisplayRole).toString());
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}

void dlgPickCharacter::accept() {
    if (m_chosen->text().isEmpty())
        take(m_large->text());
    if (m_chosen->text().isEmpty())
        return;
    rememberChosen();
    QDialog::accept();
}

void dlgPickCharacter::rememberChosen() {
    QStringList remembered;
    for (const uint character : m_chosen->text().toUcs4()) {
        const auto code = static_cast<char32_t>(character);
        remembered.append(QString::fromUcs4(&code, 1));
    }
    remembered.append(m_recent);
    remembered.removeDuplicates();
    m_recent = remembered.first(std::min<qsizetype>(remembered.size(), mostColumns));
}

dlgPickCharacter::Choice dlgPickCharacter::choice() const {
    return {m_chosen->text(), m_font->currentFont().family()};
}

} // namespace tolvo
