// SPDX-License-Identifier: MIT
#include "shell/ui/found_tools_list.h"

#include "shell/ui/row_painting.h"
#include "widgets/themed_icon.h"

#include <QAbstractListModel>
#include <QMouseEvent>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QTextLayout>
#include <algorithm>

namespace tolvo {

class FoundToolsModel : public QAbstractListModel {
  public:
    using QAbstractListModel::QAbstractListModel;

    void show(const QList<FinderEntry> &entries, const QList<FoundTool> &found) {
        beginResetModel();
        m_entries = entries;
        m_found = found;
        endResetModel();
    }
    [[nodiscard]] const FinderEntry &entry(int row) const { return m_entries.at(m_found.at(row).entry); }
    [[nodiscard]] const QList<int> &marked(int row) const { return m_found.at(row).marked; }
    [[nodiscard]] static QString secondLine(const FinderEntry &entry) {
        return entry.group + QStringLiteral(" · ") + entry.does;
    }

    [[nodiscard]] int rowCount(const QModelIndex &parent) const override {
        return parent.isValid() ? 0 : static_cast<int>(m_found.size());
    }
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override {
        switch (role) {
        case Qt::DisplayRole:
            return entry(index.row()).name;
        case Qt::AccessibleDescriptionRole:
            return secondLine(entry(index.row()));
        default:
            return {};
        }
    }

  private:
    QList<FinderEntry> m_entries;
    QList<FoundTool> m_found;
};

namespace {

constexpr int margin = 12;
constexpr int gap = 8;

/// `text` in one line of `width`, what is marked bold and in `marks`.
void drawMarked(QPainter &painter, const QRect &area, const QString &text, const QList<int> &marked,
                const QColor &marks) {
    QFont bold = painter.font();
    bold.setBold(true);
    const QString shown = QFontMetrics(bold).elidedText(text, Qt::ElideRight, area.width());
    QTextCharFormat format;
    format.setFontWeight(QFont::Bold);
    format.setForeground(marks);
    QList<QTextLayout::FormatRange> ranges;
    for (const int place : marked) {
        if (place < shown.size() && shown.at(place) == text.at(place))
            ranges.append({place, 1, format});
    }
    QTextLayout layout(shown, painter.font());
    layout.setFormats(ranges);
    layout.beginLayout();
    layout.createLine().setLineWidth(area.width());
    layout.endLayout();
    layout.draw(&painter, area.topLeft());
}

class FoundToolDelegate : public QStyledItemDelegate {
  public:
    FoundToolDelegate(const FoundToolsModel &model, QObject *parent)
        : QStyledItemDelegate(parent), m_model(model) {}

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &) const override {
        return {0, 2 * option.fontMetrics.height() + 8};
    }

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override {
        const FinderEntry &entry = m_model.entry(index.row());
        const QPalette &palette = option.palette;
        const bool chosen = option.state.testFlag(QStyle::State_Selected);
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        paintRowGround(*painter, QRectF(option.rect).adjusted(3.5, 1.5, -3.5, -1.5), palette,
                       {.tinted = chosen, .framed = chosen});
        painter->setFont(option.font);
        const QColor quiet = quietText(palette, QPalette::Text, QPalette::Base);
        QRect line = option.rect.adjusted(margin, 4, -margin, 0);
        line.setHeight(option.fontMetrics.height());
        const int keyWidth = entry.key.isEmpty() ? 0 : option.fontMetrics.horizontalAdvance(entry.key) + gap;
        painter->setPen(quiet);
        painter->drawText(line, Qt::AlignRight | Qt::AlignVCenter, entry.key);
        painter->setPen(palette.color(QPalette::Text));
        drawMarked(*painter, line.adjusted(0, 0, -keyWidth, 0), entry.name, m_model.marked(index.row()),
                   accentOn(palette, QPalette::Base));
        painter->setPen(quiet);
        line.translate(0, line.height());
        painter->drawText(
            line, Qt::AlignLeft | Qt::AlignVCenter,
            option.fontMetrics.elidedText(FoundToolsModel::secondLine(entry), Qt::ElideRight, line.width()));
        painter->restore();
    }

  private:
    const FoundToolsModel &m_model;
};

} // namespace

FoundToolsList::FoundToolsList(QWidget *parent) : QListView(parent), m_model(new FoundToolsModel(this)) {
    setObjectName(QStringLiteral("lstFoundTools"));
    setAccessibleName(QStringLiteral("Found tools"));
    setModel(m_model);
    setItemDelegate(new FoundToolDelegate(*m_model, this));
    setFocusPolicy(Qt::NoFocus);
    setUniformItemSizes(true);
    setEditTriggers(NoEditTriggers);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(ScrollPerPixel);
    setMouseTracking(true);
    setViewportMargins(0, 4, 0, 4); // as the panel
    viewport()->setCursor(Qt::PointingHandCursor);
}

void FoundToolsList::show(const QList<FinderEntry> &entries, const QList<FoundTool> &found) {
    m_model->show(entries, found);
    setCurrentIndex(m_model->index(0));
    scrollToTop();
}

int FoundToolsList::count() const {
    return m_model->rowCount({});
}

void FoundToolsList::moveBy(int rows) {
    if (count() > 0)
        setCurrentIndex(m_model->index(std::clamp(chosen() + rows, 0, count() - 1)));
}

int FoundToolsList::rowsOnPage() const {
    return count() > 0 ? std::max(1, viewport()->height() / std::max(1, sizeHintForRow(0)) - 1) : 1;
}

void FoundToolsList::currentChanged(const QModelIndex &current, const QModelIndex &previous) {
    QListView::currentChanged(current, previous);
    if (onChosen)
        onChosen();
}

void FoundToolsList::mousePressEvent(QMouseEvent *event) {
    m_pressed = indexAt(event->position().toPoint()).row();
    if (m_pressed >= 0)
        setCurrentIndex(m_model->index(m_pressed));
}

void FoundToolsList::mouseMoveEvent(QMouseEvent *event) {
    const QModelIndex under = indexAt(event->position().toPoint());
    if (under.isValid() && event->buttons() == Qt::NoButton)
        setCurrentIndex(under);
}

void FoundToolsList::mouseReleaseEvent(QMouseEvent *event) {
    const int row = indexAt(event->position().toPoint()).row();
    const bool meant = row >= 0 && row == m_pressed;
    m_pressed = -1;
    if (meant && onClick && (event->button() == Qt::LeftButton || event->button() == Qt::RightButton))
        onClick(row, event->button() == Qt::RightButton);
}

void FoundToolsList::paintEvent(QPaintEvent *event) {
    QListView::paintEvent(event);
    if (count() > 0)
        return;
    QPainter painter(viewport());
    painter.setPen(quietText(palette(), QPalette::Text, QPalette::Base));
    painter.drawText(viewport()->rect().adjusted(margin, margin, -margin, 0),
                     Qt::AlignTop | Qt::AlignHCenter | Qt::TextWordWrap, QStringLiteral("No tool matches"));
}

} // namespace tolvo
