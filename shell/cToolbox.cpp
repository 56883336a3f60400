// SPDX-License-Identifier: MIT
#include "shell/cToolbox.h"

namespace tolvo {

namespace {

bool isCategory(const Catalogue::PanelItem &item) {
    return item.token == QLatin1StringView(">");
}

cToolbox::Row categoryRow(const Catalogue::PanelItem &item, const QString &tag, cToolbox::Mark mark) {
    return {item.label, tag, item.tooltip, cToolbox::Colour::Category, true, mark};
}

cToolbox::Row toolRow(const Catalogue::PanelItem &item) {
    return {item.label, item.token, item.tooltip, cToolbox::Colour::Tool, true, cToolbox::Mark::Hidden};
}

} // namespace

void cToolbox::init(const QList<Catalogue::PanelItem> &items) {
    m_items = items;
    m_openLayer = 0;
    m_rolling = false;
    Layout(0);
}

void cToolbox::Layout(int layer) {
    m_rolling = true;
    rollUp();
    if (layer == m_openLayer)
        layer = 0;
    m_openLayer = layer;

    int row = 1;
    int category = 0;
    qsizetype item = 0;
    while (item < m_items.size()) {
        if (isCategory(m_items.at(item))) {
            ++category;
            setRow(row, categoryRow(m_items.at(item), QStringLiteral("LAY%1").arg(category),
                                    category == layer ? Mark::Open : Mark::Closed));
            ++row;
            ++item;
        } else if (layer > 0 && category == layer) {
            rollOut(item, row);
        } else {
            ++item;
        }
    }
    for (; row <= rowCount; ++row)
        setRow(row, {});
    changed();
    m_rolling = false;
}

void cToolbox::rollUp() {
    if (m_openLayer == 0)
        return;
    playSound();
    const int first = m_openLayer + 1; // all categories above the open one have one row each
    while (first <= rowCount && row(first).visible && !row(first).isCategory()) {
        for (int number = first; number < rowCount; ++number)
            setRow(number, row(number + 1));
        setRow(rowCount, {}); // nothing comes in from below, so that a full panel empties as well
        changed();
        Delay(stepDelay);
    }
}

void cToolbox::rollOut(qsizetype &item, int &row) {
    playSound();
    for (; item < m_items.size() && !isCategory(m_items.at(item)); ++item, ++row) {
        setRow(row, toolRow(m_items.at(item)));
        showCategoriesBelow(item, row + 1);
        changed();
        Delay(stepDelay);
    }
}

// While the tools slide out, the tags of the categories below carry no number: nothing may be clicked yet.
void cToolbox::showCategoriesBelow(qsizetype item, int row) {
    for (; item < m_items.size(); ++item) {
        if (isCategory(m_items.at(item)))
            setRow(row++, categoryRow(m_items.at(item), QStringLiteral("LAY"), Mark::Closed));
    }
}

void cToolbox::Delay(int milliseconds) const {
    if (m_hooks.delay)
        m_hooks.delay(milliseconds);
}

void cToolbox::setRow(int number, const Row &row) {
    if (number <= rowCount)
        m_rows.at(static_cast<size_t>(number - 1)) = row;
}

void cToolbox::changed() const {
    if (m_hooks.rowsChanged)
        m_hooks.rowsChanged();
}

void cToolbox::playSound() const {
    if (m_playSound)
        m_playSound();
}

} // namespace tolvo
