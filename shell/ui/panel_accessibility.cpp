// SPDX-License-Identifier: MIT
#include "shell/ui/panel_accessibility.h"

#include "shell/ui/panel_view.h"

#include <QAccessibleWidget>

namespace tolvo {

namespace {

class RowItem : public QAccessibleWidget {
  public:
    explicit RowItem(PanelRowButton *row) : QAccessibleWidget(row, QAccessible::TreeItem) {}

    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State result = QAccessibleWidget::state();
        const cToolbox::Row &shown = row().shown();
        result.focusable = shown.visible; // by the arrow keys, though only one row is a stop of the Tab key
        result.expandable = shown.isCategory();
        result.expanded = shown.isCategory() && shown.mark == cToolbox::Mark::Open;
        result.collapsed = shown.isCategory() && shown.mark == cToolbox::Mark::Closed;
        return result;
    }
    [[nodiscard]] QStringList actionNames() const override { return {pressAction()}; }
    void doAction(const QString &action) override {
        if (action == pressAction())
            row().click();
    }

  private:
    [[nodiscard]] PanelRowButton &row() const { return static_cast<PanelRowButton &>(*widget()); }
};

class Tree : public QAccessibleWidget {
  public:
    explicit Tree(PanelView *panel) : QAccessibleWidget(panel, QAccessible::Tree) {}

    [[nodiscard]] int childCount() const override { return static_cast<int>(rows().size()); }
    [[nodiscard]] QAccessibleInterface *child(int index) const override {
        return QAccessible::queryAccessibleInterface(rows().value(index));
    }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface *item) const override {
        return static_cast<int>(rows().indexOf(item->object()));
    }

  private:
    [[nodiscard]] QList<QObject *> rows() const {
        QList<QObject *> visible;
        for (auto *row : widget()->findChildren<PanelRowButton *>(Qt::FindDirectChildrenOnly)) {
            if (row->shown().visible)
                visible += row;
        }
        return visible;
    }
};

QAccessibleInterface *describe(const QString &, QObject *object) {
    if (auto *row = qobject_cast<PanelRowButton *>(object))
        return new RowItem(row);
    if (auto *panel = qobject_cast<PanelView *>(object))
        return new Tree(panel);
    return nullptr;
}

} // namespace

void describePanels() {
    QAccessible::installFactory(describe); // the same one is installed once
}

void reportExpanded(PanelRowButton &row) {
    QAccessible::State changed;
    changed.expanded = true;
    QAccessibleStateChangeEvent event(&row, changed);
    QAccessible::updateAccessibility(&event);
}

} // namespace tolvo
