// SPDX-License-Identifier: MIT
#include "search/ui/replacement_list.h"

#include "base/escaped_text.h"

#include <QHeaderView>
#include <QKeyEvent>

namespace tolvo {

namespace {

constexpr qsizetype longestCell = 200; // units
constexpr int rowsShown = 5;

QString cellOf(QStringView text) {
    const QString shown = escapedControls(text.first(std::min(text.size(), longestCell))).text;
    return text.size() > longestCell ? shown + QChar(0x2026) : shown;
}

} // namespace

ReplacementList::ReplacementList(const QString &name, QWidget *parent) : QTreeWidget(parent) {
    setObjectName(name);
    setAccessibleName(QStringLiteral("Replacements in sight"));
    setHeaderLabels({QStringLiteral("In sight"), QStringLiteral("Becomes")});
    header()->setSectionResizeMode(QHeaderView::Stretch);
    header()->setSectionsClickable(false);
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setTabKeyNavigation(false);
    connect(this, &QTreeWidget::itemClicked, this, &ReplacementList::choose);
}

/// The key would go on to the default button of the window.
void ReplacementList::keyPressEvent(QKeyEvent *event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        choose(currentItem());
    else
        QTreeWidget::keyPressEvent(event);
}

void ReplacementList::choose(QTreeWidgetItem *item) {
    const int row = indexOfTopLevelItem(item);
    if (onChosen && row >= 0 && row < m_places.size())
        onChosen(m_places.at(row));
}

void ReplacementList::showReplacements(const QString &text, const QList<PreviewedReplacement> &replacements) {
    clear();
    m_places.clear();
    for (const auto &[place, replacement] : replacements.first(std::min(replacements.size(), mostRows))) {
        m_places += place;
        addRow(cellOf(QStringView(text).sliced(place.start, place.length)), cellOf(replacement));
    }
}

void ReplacementList::addRow(const QString &before, const QString &after) {
    auto *row = new QTreeWidgetItem(this, {before, after});
    QFont struckOut = font();
    struckOut.setStrikeOut(true);
    row->setFont(0, struckOut);
    if (!after.isEmpty())
        return;
    QFont slanted = font();
    slanted.setItalic(true);
    row->setText(1, QStringLiteral("(nothing)"));
    row->setFont(1, slanted);
}

QSize ReplacementList::sizeHint() const {
    const int row = fontMetrics().height() + 4;
    return {0, header()->sizeHint().height() + rowsShown * row + 2 * frameWidth()};
}

} // namespace tolvo
