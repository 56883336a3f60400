// SPDX-License-Identifier: MIT
#include "shell/ui/tool_finder_view.h"

#include "shell/finder_entries.h"
#include "shell/frmMain.h"
#include "shell/ui/found_tools_list.h"
#include "shell/ui/panel_view.h"
#include "shell/ui/tool_explanation.h"
#include "widgets/themed_icon.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <algorithm>

namespace tolvo {

namespace {

constexpr int lastUsedShown = 5;
constexpr int spacing = 6;

QString rightClickHint(const FinderEntry &entry) {
    return entry.rightClick.isEmpty() ? QString() : QStringLiteral("Right click: ") + entry.rightClick;
}

QString foundHint(const FinderEntry &entry) {
    const QString shifted =
        entry.rightClick.isEmpty() ? QString() : QStringLiteral(" · Shift-Enter: ") + entry.rightClick;
    return QStringLiteral("Enter runs") + shifted + QStringLiteral(" · Esc: back to the text");
}

QString countText(qsizetype count) {
    if (count == 0)
        return QStringLiteral("No tool matches");
    return count == 1 ? QStringLiteral("1 result") : QStringLiteral("%1 results").arg(count);
}

} // namespace

ToolFinderView::ToolFinderView(PanelView &panel, QWidget *parent)
    : QWidget(parent), m_panel(panel), m_field(new QLineEdit(this)),
      m_explanation(new ToolExplanation(this)) {
    panel.setParent(this);
    m_field->setObjectName(QStringLiteral("txtFindTool"));
    m_field->setPlaceholderText(QStringLiteral("Find a tool (Ctrl+P)"));
    m_field->setAccessibleName(QStringLiteral("Find a tool"));
    m_field->addAction(themedIcon(QStringLiteral("find")), QLineEdit::LeadingPosition);
    m_field->installEventFilter(this);
    connect(m_field, &QLineEdit::textChanged, this, [this] { search(); });
    panel.onPointed = [this](const cToolbox::Row *row) { explainPanelRow(row); };
    panel.onTyped = [this](const QString &typed) { begin(typed); };
    panel.onEscape = [this] { leave(); };
    explainPanelRow(nullptr);
}

ToolFinderView::~ToolFinderView() = default;

void ToolFinderView::attach(frmMain &session, const QString &otherWords) {
    m_session = &session;
    m_otherWordsFile = otherWords;
}

bool ToolFinderView::isKey(const QKeyEvent &key) {
    return key.key() == Qt::Key_P && key.modifiers() == Qt::ControlModifier;
}

void ToolFinderView::begin(const QString &typed) {
    if (!sessionTakesCommands())
        return;
    m_field->setFocus(Qt::ShortcutFocusReason);
    if (!typed.isEmpty()) {
        m_field->setText(m_field->text() + typed);
        return;
    }
    m_field->selectAll();
    search(); // the focus may have been there already
}

bool ToolFinderView::sessionTakesCommands() const {
    return m_session != nullptr && !m_session->bSessionOver;
}

// Places

/// As high as the icons beside it.
int ToolFinderView::fieldHeight() const {
    return std::max(m_field->sizeHint().height(), fontMetrics().height() + 12);
}

QSize ToolFinderView::minimumSizeHint() const {
    const QSize panel = m_panel.minimumSizeHint();
    return {panel.width(), fieldHeight() + spacing + panel.height()};
}

QSize ToolFinderView::sizeHint() const {
    const QSize panel = m_panel.sizeHint();
    return {panel.width(), minimumSizeHint().height()};
}

/// The explanation gets what the panel doesn't need to be read with ease.
void ToolFinderView::arrange() {
    const int field = fieldHeight();
    const int top = field + spacing;
    const int rows = (m_panel.minimumSizeHint().height() + m_panel.sizeHint().height()) / 2;
    const int spare = height() - top - rows - spacing;
    const int line = m_explanation->fontMetrics().lineSpacing();
    const int explanation = std::clamp(spare, 0, m_explanation->wantedHeight()) / line * line;
    const int panel = height() - top - (explanation > 0 ? explanation + spacing : 0);
    m_field->setGeometry(0, 0, width(), field);
    m_panel.setGeometry(0, top, width(), panel);
    if (m_list)
        m_list->setGeometry(m_panel.geometry());
    m_explanation->setGeometry(2, height() - explanation, width() - 2, explanation);
}

void ToolFinderView::resizeEvent(QResizeEvent *event) {
    QWidget::resizeEvent(event);
    arrange();
}

bool ToolFinderView::event(QEvent *event) {
    if (event->type() == QEvent::LayoutRequest || event->type() == QEvent::FontChange) {
        updateGeometry();
        arrange();
    }
    return QWidget::event(event);
}

// Finding

void ToolFinderView::gatherEntries() {
    if (!m_otherWords)
        m_otherWords = std::make_unique<OtherWords>(OtherWords::read(m_otherWordsFile));
    const SessionServices &services = m_session->services();
    m_entries = finderEntries(services.oTools, services.oPowerButtons, *m_otherWords);
}

void ToolFinderView::search() {
    if (!sessionTakesCommands())
        return;
    const bool asks = !m_field->text().trimmed().isEmpty();
    if (!asks && !m_field->hasFocus()) {
        showPanel();
        return;
    }
    gatherEntries();
    const QStringList used = lastUsed(m_session->services().store);
    const QList<FoundTool> found =
        asks ? findTools(m_entries, m_field->text(), used) : lastUsedTools(m_entries, used, lastUsedShown);
    if (!asks && found.isEmpty())
        showPanel();
    else
        showResults(found);
}

void ToolFinderView::showResults(const QList<FoundTool> &found) {
    if (!m_list) {
        m_list = new FoundToolsList(this);
        m_list->onChosen = [this] { explainFound(); };
        m_list->onClick = [this](int row, bool right) { run(row, right); };
        m_list->setGeometry(m_panel.geometry());
    }
    m_found = found;
    m_list->show(m_entries, found);
    m_list->setVisible(true);
    m_panel.hide();
    explainFound();
}

void ToolFinderView::showPanel() {
    m_found.clear();
    m_panel.show();
    if (m_list) {
        m_list->hide();
        m_list->show({}, {});
    }
    m_field->setAccessibleDescription({});
    explainPanelRow(nullptr);
}

void ToolFinderView::leave() {
    if (sessionTakesCommands())
        m_session->txtCurrent().setFocus();
    m_field->clear();
    showPanel();
}

void ToolFinderView::run(int row, bool right) {
    if (!sessionTakesCommands() || row < 0 || row >= m_found.size())
        return;
    const QString id = m_entries.at(m_found.at(row).entry).id;
    leave(); // a dialog gives the focus back to where it was
    m_session->setStatus({});
    runFound(*m_session, id, right);
}

bool ToolFinderView::handleKey(const QKeyEvent &key) {
    const bool shifted = key.modifiers() == Qt::ShiftModifier;
    if (key.modifiers() != Qt::NoModifier && key.modifiers() != Qt::KeypadModifier && !shifted)
        return false;
    const bool results = m_list != nullptr && m_list->isVisible();
    switch (key.key()) {
    case Qt::Key_Escape:
        leave();
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (results)
            run(m_list->chosen(), shifted);
        return true;
    case Qt::Key_Up:
    case Qt::Key_Down:
        if (results)
            m_list->moveBy(key.key() == Qt::Key_Up ? -1 : 1);
        return true;
    case Qt::Key_Tab:
        if (m_field->text().isEmpty())
            showPanel(); // which comes next
        return false;
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        if (results)
            m_list->moveBy(key.key() == Qt::Key_PageUp ? -m_list->rowsOnPage() : m_list->rowsOnPage());
        return true;
    default:
        return false;
    }
}

bool ToolFinderView::eventFilter(QObject *watched, QEvent *event) {
    switch (event->type()) {
    case QEvent::KeyPress:
        if (handleKey(*static_cast<QKeyEvent *>(event)))
            return true;
        break;
    case QEvent::FocusIn:
    case QEvent::FocusOut:
        if (static_cast<QFocusEvent *>(event)->reason() != Qt::PopupFocusReason)
            search();
        break;
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}

// Explaining

void ToolFinderView::explainPanelRow(const cToolbox::Row *row) {
    if (m_panel.isHidden() && m_list != nullptr)
        return;
    if (row == nullptr || !sessionTakesCommands()) {
        m_explanation->clear(QStringLiteral("Point at a tool to see what it does."));
        return;
    }
    if (m_entries.isEmpty())
        gatherEntries();
    const auto entry =
        std::find_if(m_entries.begin(), m_entries.end(), [&](const auto &one) { return one.id == row->tag; });
    if (entry != m_entries.end())
        m_explanation->explain(*entry, rightClickHint(*entry));
    else
        m_explanation->explain({.name = row->text, .does = row->tooltip}, {});
}

void ToolFinderView::explainFound() {
    const int chosen = m_list->chosen();
    QString said = countText(m_found.size());
    if (chosen < 0 || chosen >= m_found.size()) {
        m_explanation->clear(QStringLiteral("Esc: back to the text"));
    } else {
        const FinderEntry &entry = m_entries.at(m_found.at(chosen).entry);
        m_explanation->explain(entry, foundHint(entry));
        said += QStringLiteral(". %1 of %2: %3, %4")
                    .arg(chosen + 1)
                    .arg(m_found.size())
                    .arg(entry.name, entry.group);
    }
    m_field->setAccessibleDescription(said);
}

} // namespace tolvo
