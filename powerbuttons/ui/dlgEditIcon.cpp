// SPDX-License-Identifier: MIT
#include "powerbuttons/ui/dlgEditIcon.h"

#include "platform/desktop/FontDialog.h"
#include "powerbuttons/ui/dlgPickCharacter.h"
#include "powerbuttons/ui/icon_painter.h"
#include "powerbuttons/ui/icon_preview.h"
#include "widgets/FoldingRow.h"
#include "widgets/themed_icon.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QToolButton>
#include <QVBoxLayout>
#include <cmath>

namespace tolvo {

namespace {

constexpr int previewMagnification = 5;

QToolButton *makeTextButton(QWidget *parent, const char *name, const char *icon, const QString &text) {
    auto *button = new QToolButton(parent);
    button->setObjectName(QLatin1StringView(name));
    button->setIcon(themedIcon(QLatin1StringView(icon), QPalette::Button));
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    button->setText(text);
    button->setFocusPolicy(Qt::StrongFocus);
    return button;
}

} // namespace

dlgEditIcon::dlgEditIcon(QStringList &recentCharacters, QWidget *parent)
    : QDialog(parent), m_recentCharacters(recentCharacters), m_symbol(new QLineEdit(this)),
      m_size(new QScrollBar(Qt::Horizontal, this)), m_fontLabel(new QLabel(this)),
      m_preview(new IconPreview(previewMagnification, this)), m_small(new IconPreview(1, this)) {
    setObjectName(QStringLiteral("dlgEditIcon"));
    setWindowTitle(QStringLiteral("Edit Button Icon"));
    makeControls();
    arrange();
    connect(m_symbol, &QLineEdit::textChanged, this, [this](const QString &text) {
        m_icon.text = firstCharacters(text, iconCharacters);
        if (m_icon.text != text)
            m_symbol->setText(m_icon.text);
        repaintPreview();
    });
    connect(m_size, &QScrollBar::valueChanged, this, [this](int size) {
        m_icon.font.size = size;
        repaintPreview();
    });
}

void dlgEditIcon::makeControls() {
    m_symbol->setObjectName(QStringLiteral("txtSymbol"));
    m_size->setObjectName(QStringLiteral("FlatScrollBar1"));
    m_size->setAccessibleName(QStringLiteral("Size of the font"));
    m_size->setRange(smallestIconFont, largestIconFont);
    m_size->setPageStep(4);
    // A scroll bar inverts its keys, which is right only for one that stands upright.
    m_size->setInvertedControls(false);
    m_size->setFocusPolicy(Qt::StrongFocus);
    m_size->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_size->setMinimumWidth(fontMetrics().averageCharWidth() * 20);
    m_fontLabel->setObjectName(QStringLiteral("labFont"));
    m_fontLabel->setTextFormat(Qt::PlainText);
    m_fontLabel->setWordWrap(true);
    m_preview->setObjectName(QStringLiteral("picPreview"));
    m_preview->setAccessibleName(QStringLiteral("Preview"));
    m_small->setObjectName(QStringLiteral("picSmall"));
    m_small->setAccessibleName(QStringLiteral("On the button: the icon at its size"));
}

QToolButton *dlgEditIcon::makeArrow(const char *name, Qt::ArrowType arrow, const QString &accessibleName,
                                    double dx, double dy) {
    auto *button = new QToolButton(this);
    button->setObjectName(QLatin1StringView(name));
    button->setArrowType(arrow);
    button->setAccessibleName(accessibleName);
    button->setToolTip(accessibleName);
    button->setFocusPolicy(Qt::StrongFocus);
    button->setAutoRepeat(true);
    connect(button, &QToolButton::clicked, this, [this, dx, dy] {
        m_icon.x += dx * iconStep;
        m_icon.y += dy * iconStep;
        repaintPreview();
    });
    return button;
}

void dlgEditIcon::arrange() {
    auto *frame = new QGroupBox(QStringLiteral("Preview"), this);
    frame->setObjectName(QStringLiteral("frmPreview"));
    auto *grid = new QGridLayout(frame);
    grid->addWidget(makeArrow("AdjustUp", Qt::UpArrow, QStringLiteral("Move up"), 0, -1), 0, 1,
                    Qt::AlignCenter);
    grid->addWidget(makeArrow("AdjustLeft", Qt::LeftArrow, QStringLiteral("Move left"), -1, 0), 1, 0,
                    Qt::AlignCenter);
    grid->addWidget(m_preview, 1, 1, Qt::AlignCenter);
    grid->addWidget(makeArrow("AdjustRight", Qt::RightArrow, QStringLiteral("Move right"), 1, 0), 1, 2,
                    Qt::AlignCenter);
    grid->addWidget(makeArrow("AdjustDown", Qt::DownArrow, QStringLiteral("Move down"), 0, 1), 2, 1,
                    Qt::AlignCenter);

    QToolButton *symbol =
        makeTextButton(this, "imgGetSymbol", "choose-symbol", QStringLiteral("Choose s&ymbol..."));
    QToolButton *font = makeTextButton(this, "imgSetFont", "choose-font", QStringLiteral("Choose &font..."));
    font->setMinimumWidth(symbol->sizeHint().width());
    auto *centreButton = new QPushButton(QStringLiteral("C&entre"), this);
    centreButton->setObjectName(QStringLiteral("cmdCentre"));
    centreButton->setAccessibleName(QStringLiteral("Position: Centre"));
    centreButton->setAutoDefault(false);
    connect(symbol, &QToolButton::clicked, this, &dlgEditIcon::getSymbol);
    connect(font, &QToolButton::clicked, this, &dlgEditIcon::setFont);
    connect(centreButton, &QPushButton::clicked, this, &dlgEditIcon::centre);

    auto *fields = new QWidget(this);
    auto *form = new QFormLayout(fields);
    form->setContentsMargins({});
    form->setRowWrapPolicy(QFormLayout::WrapLongRows);
    form->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    form->setVerticalSpacing(10);
    form->setHorizontalSpacing(12);
    form->addRow(QStringLiteral("&Text, up to 3 characters:"), m_symbol);
    form->addRow({}, symbol);
    form->addRow(QStringLiteral("Font:"), m_fontLabel);
    form->addRow({}, font);
    form->addRow(QStringLiteral("&Size:"), m_size);
    form->addRow(QStringLiteral("Position:"), centreButton);
    form->addRow(QStringLiteral("On the button:"), m_small);

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Ok)->setObjectName(QStringLiteral("OKButton"));
    buttons->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("CancelButton"));
    connect(buttons, &QDialogButtonBox::accepted, this, &dlgEditIcon::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &dlgEditIcon::reject);

    auto *layout = new QVBoxLayout(this);
    auto *row = new FoldingRow;
    row->setSpacing(16);
    row->addWidget(fields, 1);
    row->addWidget(frame, 0, Qt::AlignTop);
    layout->addLayout(row, 1);
    layout->addWidget(buttons);
    setTabOrder(m_symbol, symbol);
    setTabOrder(symbol, font);
    setTabOrder(font, m_size);
    setTabOrder(m_size, centreButton);
}

bool dlgEditIcon::showDialog(ButtonIcon &icon) {
    const bool fresh = icon.text.isEmpty();
    m_icon = icon;
    if (m_icon.font.name.isEmpty())
        m_icon.font.name = defaultIconFont();
    if (m_icon.font.size <= 0)
        m_icon.font.size = iconUnits / 2;
    if (fresh) {
        m_icon.text = QStringLiteral("A");
        centre();
    }
    const ButtonIcon shown = m_icon;
    m_symbol->setText(shown.text);
    m_size->setValue(static_cast<int>(std::lround(shown.font.size)));
    m_icon = shown;
    repaintPreview();
    m_symbol->setFocus();
    m_symbol->selectAll();
    if (exec() != QDialog::Accepted)
        return false;
    icon = m_icon;
    return true;
}

void dlgEditIcon::repaintPreview() {
    m_fontLabel->setText(fontLabel(m_icon.font));
    m_preview->setIcon(m_icon);
    m_small->setIcon(m_icon);
}

void dlgEditIcon::setFont() {
    FontDialog dialog(m_icon.font, this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const Font chosen = dialog.font();
    m_size->setValue(static_cast<int>(std::lround(chosen.size)));
    m_icon.font = chosen;
    repaintPreview();
}

void dlgEditIcon::getSymbol() {
    dlgPickCharacter picker(m_icon.font.name, m_recentCharacters, this);
    if (picker.exec() != QDialog::Accepted)
        return;
    m_icon.font.name = picker.choice().fontName;
    m_symbol->setText(picker.choice().text);
    repaintPreview();
}

void dlgEditIcon::centre() {
    const QPointF position = centredPosition(m_icon);
    m_icon.x = position.x();
    m_icon.y = position.y();
    repaintPreview();
}

} // namespace tolvo
