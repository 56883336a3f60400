// SPDX-License-Identifier: MIT
// The controls of the main window and where they stand.
#include "base/application.h"
#include "platform/desktop/font_conversion.h"
#include "shell/cToolbox.h"
#include "shell/frmMain.h"
#include "shell/ui/ImageButton.h"
#include "shell/ui/MainWindow.h"
#include "shell/ui/PanelSplitter.h"
#include "shell/ui/change_view.h"
#include "shell/ui/history_menus.h"
#include "shell/ui/status_bar.h"
#include "shell/ui/window_size.h"
#include "shell/window_place.h"
#include "widgets/FoldingRow.h"
#include "widgets/PrimaryButton.h"
#include "widgets/grid.h"
#include "widgets/roving_focus.h"
#include "widgets/themed_icon.h"

#include <QAccessibleWidget>
#include <QAction>
#include <QHBoxLayout>
#include <QHash>
#include <QPushButton>
#include <QScreen>
#include <QStyle>
#include <QVBoxLayout>
#include <functional>

namespace tolvo {

namespace {

/// The proportional font as long as the Options name no other.
Font textFontAtFirst() {
    return {.name = QStringLiteral("Arial"), .size = 10};
}

/// Screen readers take a bare widget for a part without a meaning.
QAccessibleInterface *describeMainWindow(const QString &className, QObject *object) {
    auto *window =
        className == QLatin1StringView("tolvo::MainWindow") ? qobject_cast<QWidget *>(object) : nullptr;
    return window == nullptr ? nullptr : new QAccessibleWidget(window, QAccessible::Window);
}

QHBoxLayout *row(QWidget *parent) {
    auto *layout = new FoldingRow(parent);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(Grid(*parent).gap());
    return layout;
}

/// Two controls that act as one.
QWidget *sideBySide(QWidget *left, QWidget *right) {
    auto *pair = new QWidget;
    auto *layout = new QHBoxLayout(pair);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(left);
    layout->addWidget(right);
    return pair;
}

} // namespace

MainWindow::MainWindow(EscapeWatch &escape)
    : m_escape(escape), m_panel(new PanelView(this)), m_toolFinder(new ToolFinderView(*m_panel, this)),
      m_powerButtons(new PowerButtonBar(this)) {
    QAccessible::installFactory(describeMainWindow);
    setObjectName(QStringLiteral("frmMain"));
    setWindowTitle(applicationTitle() + u' ' + applicationVersion());

    const Grid grid(*this);
    m_topBar = topBar();
    m_textArea = textArea();
    m_powerRow = powerRow();
    m_buttonRow = buttonRow();
    auto *rightSide = new FoldingColumn(*m_toolFinder);
    auto *right = static_cast<QVBoxLayout *>(rightSide->layout());
    right->setContentsMargins(0, 0, 0, 0);
    right->setSpacing(grid.gap());
    right->addWidget(m_topBar);
    right->addWidget(m_textArea, 1);
    right->addWidget(m_powerRow);
    right->addWidget(m_buttonRow);
    m_splitter = new PanelSplitter;
    m_splitter->setHandleWidth(grid.gap());
    m_splitter->addWidget(m_toolFinder);
    m_splitter->addWidget(rightSide);
    m_splitter->setStretchFactor(1, 1);
    m_splitter->handle(1)->setObjectName(QStringLiteral("panelEdge"));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(grid.margin(), grid.gap(), grid.margin(), grid.smallGap());
    layout->setSpacing(grid.smallGap());
    layout->addWidget(m_splitter, 1);
    m_statusBar = new StatusBar(new ResizeHandle(this));
    layout->addWidget(m_statusBar);
    m_changeView = new ChangeView({m_txtText1, m_txtTextWW}, this);
    arrangeTabOrder();
    offerUndoInTextBoxes();
    undoRedoChanged(false, false);
    showTextBox(false);
    constexpr int edge = 4; // of a window manager's frame, which is not known yet
    resize(firstSize(screen()->availableSize(),
                     {2 * edge, style()->pixelMetric(QStyle::PM_TitleBarHeight) + edge}));
    const int most = width() * 2 / 5; // of large letters; the text comes first
    setPanelWidth(std::min(std::max(m_panel->sizeHint().width(), 7 * grid.target()), most));
}

int MainWindow::panelWidth() const {
    return m_splitter->sizes().front();
}

void MainWindow::setPanelWidth(int width) {
    layout()->activate();
    m_splitter->setSizes({width, m_splitter->width() - width});
}

QPushButton *MainWindow::button(const char *name, const QString &caption, const QString &tip,
                                std::function<void()> clicked) {
    return prepare(new QPushButton(caption), name, tip, std::move(clicked));
}

QPushButton *MainWindow::prepare(QPushButton *result, const char *name, const QString &tip,
                                 std::function<void()> clicked) {
    result->setMinimumHeight(Grid(*result).target());
    result->setObjectName(QLatin1StringView(name));
    result->setToolTip(tip);
    result->setFocusPolicy(Qt::TabFocus); // a click leaves the focus with the text
    connect(result, &QPushButton::clicked, this, [this, clicked = std::move(clicked)] {
        if (m_session)
            clicked();
    });
    return result;
}

QWidget *MainWindow::textArea() {
    auto *area = new QWidget;
    auto *layout = new QVBoxLayout(area);
    layout->setContentsMargins(0, 0, 0, 0);
    const auto box = [this, layout](const char *name, bool wrapped) {
        auto *result =
            new PlainTextBox(wrapped ? PlainTextBox::Lines::Wrapped : PlainTextBox::Lines::AsTheyAre);
        result->setObjectName(QLatin1StringView(name));
        result->setAccessibleName(QStringLiteral("Text"));
        result->setMinimumHeight(120);
        result->document()->setDocumentMargin(Grid(*this).gap());
        result->setTextFont(toQFont(textFontAtFirst()));
        result->installEventFilter(this);
        result->extendMenu = [this](QMenu &menu) { extendMenu(menu); };
        layout->addWidget(result);
        return result;
    };
    m_txtText1 = box("txtText1", false);
    m_txtTextWW = box("txtTextWW", true);
    return area;
}

QWidget *MainWindow::powerRow() {
    auto *bar = new QWidget;
    auto *layout = row(bar);
    layout->addWidget(m_powerButtons);
    m_cmdMore = new ImageButton(QStringLiteral("more"), QStringLiteral("More for PowerButtons"));
    m_cmdMore->setObjectName(QStringLiteral("cmdMorePowerButtons"));
    m_cmdMore->setToolTip(QStringLiteral("More: share and load PowerButtons, make one of what you just did"));
    m_cmdMore->setPopupMode(QToolButton::InstantPopup);
    layout->addWidget(m_cmdMore);
    layout->addStretch(1);
    m_cmdUndo = button(
        "cmdUndo", QStringLiteral("&Undo"),
        QStringLiteral("Take back the last tool, or all that was typed after it (Ctrl-Z: step by step)"),
        [this] { m_session->cmdUndo_Click(); });
    m_cmdRedo =
        button("cmdRedo", QStringLiteral("&Redo"), QStringLiteral("Bring back what Undo took (Ctrl-Y)"),
               [this] { m_session->cmdRedo_Click(); });
    m_cmdUndo->setIcon(themedIcon(QStringLiteral("undo"), QPalette::Button));
    m_cmdRedo->setIcon(themedIcon(QStringLiteral("redo"), QPalette::Button));
    m_undoArrow = new HistoryArrow(*m_cmdUndo, "cmdUndoList", QStringLiteral("Choose how far to undo"));
    m_redoArrow = new HistoryArrow(*m_cmdRedo, "cmdRedoList", QStringLiteral("Choose how far to redo"));
    layout->addWidget(sideBySide(m_cmdUndo, m_undoArrow));
    layout->addWidget(sideBySide(m_cmdRedo, m_redoArrow));
    return bar;
}

/// What the keys do, in the context menu of the text.
void MainWindow::offerUndoInTextBoxes() {
    const auto action = [this](const char *icon, const QString &text, void (frmMain::*command)()) {
        auto *result = new QAction(themedIcon(QLatin1StringView(icon)), text, this);
        connect(result, &QAction::triggered, this, [this, command] { std::invoke(command, m_session); });
        return result;
    };
    m_undoAction = action("undo", QStringLiteral("&Undo\tCtrl+Z"), &frmMain::undoStep);
    m_redoAction = action("redo", QStringLiteral("&Redo\tCtrl+Y"), &frmMain::cmdRedo_Click);
    for (PlainTextBox *box : {m_txtText1, m_txtTextWW})
        box->setUndoActions(*m_undoAction, *m_redoAction);
}

QWidget *MainWindow::buttonRow() {
    auto *bar = new QWidget;
    auto *layout = row(bar);
    auto *refresh =
        button("cmdRefresh", QStringLiteral("Re&fresh with current Clipboard"),
               QStringLiteral("Replace the text by what is on the clipboard now; Undo brings it back"),
               [this] { m_session->cmdRefresh_Click(); });
    refresh->setIcon(themedIcon(QStringLiteral("refresh"), QPalette::Button));
    layout->addWidget(refresh);
    layout->addStretch(1);
    layout->addWidget(button("cmdCancel", QStringLiteral("Cancel"),
                             QStringLiteral("Close and leave the clipboard as it is (Alt-Q)"),
                             [this] { m_session->cmdCancel_Click(); }));
    auto *close =
        prepare(new PrimaryButton(QStringLiteral("Copy and Close")), "cmdClose",
                QStringLiteral("Put the whole text on the clipboard and close (Alt-D or Ctrl-Shift-C)"),
                [this] { m_session->cmdClose_Click(); });
    close->setDefault(true); // stands out; Return works in the text as ever
    layout->addWidget(close);
    return bar;
}

void MainWindow::arrangeTabOrder() {
    QHash<QString, QWidget *> byName;
    for (QWidget *control : findChildren<QWidget *>())
        byName.insert(control->objectName(), control);
    QWidget *before = m_txtTextWW;
    setTabOrder(m_txtText1, m_txtTextWW);
    const auto follow = [&byName, &before](const QString &name) {
        QWidget *next = byName.value(name);
        setTabOrder(before, next);
        before = next;
    };
    for (const char *name :
         {"cmdClose", "cmdCancel", "cmdRefresh", "cmdUndo", "cmdUndoList", "cmdRedo", "cmdRedoList"})
        follow(QLatin1StringView(name));
    for (int i = 0; i < CPowerButtonCollection::buttonCount; ++i)
        follow(QStringLiteral("imgPower_%1").arg(i));
    follow(QStringLiteral("cmdMorePowerButtons"));
    follow(QStringLiteral("txtFindTool"));
    for (int i = 1; i <= cToolbox::rowCount; ++i)
        follow(QStringLiteral("lblToolbox_%1").arg(i));
    follow(QStringLiteral("panelEdge"));
    for (std::size_t i = 0; i < favourites.size(); ++i)
        follow(QStringLiteral("imgFavourites_%1").arg(i));
    for (const char *name : {"imgWordwrap", "imgOptions", "imgHelp", "imgAbout", "cmdZoom", "cmdPlace"})
        follow(QLatin1StringView(name));
    byName.value(QStringLiteral("panelEdge"))->setFocusPolicy(Qt::NoFocus); // F6 goes there, Tab goes on
    const auto numbered = [](const QString &name, int count) {
        QStringList names;
        for (int i = 0; i < count; ++i)
            names += name.arg(i);
        return names;
    };
    // Controls that are one stop of the Tab key.
    const auto oneStop = [this, &byName](const QStringList &names) {
        QList<QWidget *> members;
        for (const QString &name : names)
            members += byName.value(name);
        new RovingFocus(members, this);
    };
    oneStop(numbered(QStringLiteral("imgFavourites_%1"), static_cast<int>(favourites.size())));
    oneStop({QStringLiteral("imgWordwrap"), QStringLiteral("imgOptions"), QStringLiteral("imgHelp"),
             QStringLiteral("imgAbout")});
    oneStop(numbered(QStringLiteral("imgPower_%1"), CPowerButtonCollection::buttonCount));
}

} // namespace tolvo
