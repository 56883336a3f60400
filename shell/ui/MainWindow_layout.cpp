// SPDX-License-Identifier: MIT
// The controls of the main window and where they stand.
#include "base/application.h"
#include "platform/desktop/font_conversion.h"
#include "shell/cToolbox.h"
#include "shell/frmMain.h"
#include "shell/ui/MainWindow.h"
#include "shell/ui/any_click.h"
#include "shell/ui/window_size.h"
#include "widgets/roving_focus.h"
#include "widgets/themed_icon.h"

#include <QAccessibleWidget>
#include <QAction>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QScreen>
#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>
#include <array>
#include <functional>

namespace tolvo {

namespace {

constexpr QSize startSize{820, 560};
constexpr int iconPixels = 20;

/// Icons of the favourites, in the order of the bar.
constexpr std::array<const char *, favourites.size()> favouriteIcons{
    "indent",    "unindent",     "title-case",    "plain-punctuation", "trim",          "spelling",
    "paragraph", "remove-lines", "numbered-list", "bullet-list",       "trim-and-space"};

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
    auto *layout = new QHBoxLayout(parent);
    layout->setContentsMargins(0, 0, 0, 0);
    return layout;
}

} // namespace

MainWindow::MainWindow(EscapeWatch &escape)
    : m_escape(escape), m_panel(new PanelView(this)), m_powerButtons(new PowerButtonBar(this)) {
    QAccessible::installFactory(describeMainWindow);
    setObjectName(QStringLiteral("frmMain"));
    setWindowTitle(applicationTitle() + u' ' + applicationVersion());

    auto *right = new QVBoxLayout;
    right->setSpacing(6);
    m_topBar = topBar();
    m_textArea = textArea();
    m_powerRow = powerRow();
    m_buttonRow = buttonRow();
    right->addWidget(m_topBar);
    right->addWidget(m_textArea, 1);
    right->addWidget(m_powerRow);
    right->addWidget(m_buttonRow);
    auto *columns = new QHBoxLayout;
    columns->setSpacing(8);
    columns->addWidget(m_panel);
    columns->addLayout(right, 1);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(8, 6, 4, 2);
    layout->setSpacing(4);
    layout->addLayout(columns, 1);
    layout->addWidget(statusRow());
    columns->setContentsMargins(0, 0, 4, 0);
    arrangeTabOrder();
    offerUndoInTextBoxes();
    undoRedoChanged(false, false);
    showTextBox(false);
    const QSize titleBar(0, style()->pixelMetric(QStyle::PM_TitleBarHeight));
    resize(startSize.boundedTo(screen()->availableSize() - titleBar));
}

QToolButton *MainWindow::imageButton(const char *name, const char *icon, const QString &tip,
                                     std::function<void(bool)> clicked) {
    auto *image = new QToolButton;
    image->setObjectName(QLatin1StringView(name));
    image->setIcon(themedIcon(QLatin1StringView(icon)));
    image->setIconSize({iconPixels, iconPixels});
    image->setAutoRaise(true);
    image->setFocusPolicy(Qt::TabFocus);
    image->setToolTip(tip);
    image->setAccessibleName(tip);
    new AnyClick(image, [this, clicked = std::move(clicked)](bool right) {
        if (m_session)
            clicked(right);
    });
    return image;
}

QPushButton *MainWindow::button(const char *name, const QString &caption, const QString &tip,
                                std::function<void()> clicked) {
    auto *result = new QPushButton(caption);
    result->setObjectName(QLatin1StringView(name));
    result->setToolTip(tip);
    result->setFocusPolicy(Qt::TabFocus); // a click leaves the focus with the text
    connect(result, &QPushButton::clicked, this, [this, clicked = std::move(clicked)] {
        if (m_session)
            clicked();
    });
    return result;
}

QWidget *MainWindow::topBar() {
    auto *bar = new QWidget;
    auto *layout = row(bar);
    layout->setSpacing(1);
    for (std::size_t i = 0; i < favourites.size(); ++i) {
        const QString tag = QString::fromUtf16(favourites.at(i).tag);
        layout->addWidget(imageButton(QStringLiteral("imgFavourites_%1").arg(i).toLatin1().constData(),
                                      favouriteIcons.at(i), QString::fromUtf16(favourites.at(i).tooltip),
                                      [this, tag](bool right) {
                                          m_session->bRightButton = right;
                                          m_session->imgFavourites_Click(tag);
                                      }));
    }
    layout->addStretch(1);
    m_imgWordwrap = imageButton("imgWordwrap", "word-wrap", QStringLiteral("Toggle word wrap"), [this](bool) {
        m_session->imgWordwrap_Click();
        m_imgWordwrap->setChecked(m_session->bWordWrap);
    });
    m_imgWordwrap->setToolTip(QStringLiteral("Toggle word wrap (Alt-W)"));
    m_imgWordwrap->setCheckable(true);
    layout->addWidget(m_imgWordwrap);
    auto *options = imageButton("imgOptions", "options", QStringLiteral("Options"), [this](bool right) {
        m_session->bRightButton = right;
        m_session->imgOptions_Click();
    });
    options->setToolTip(QStringLiteral("Options (Ctrl-O)\nRight click: switch the font"));
    layout->addWidget(options);
    auto *help =
        imageButton("imgHelp", "help", QStringLiteral("Help"), [this](bool) { m_session->imgHelp_Click(); });
    help->setToolTip(QStringLiteral("Help (F1)"));
    layout->addWidget(help);
    layout->addWidget(imageButton("imgAbout", "about", QStringLiteral("About"),
                                  [this](bool) { m_session->imgAbout_Click(); }));
    return bar;
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
        result->setFont(toQFont(textFontAtFirst()));
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
    layout->addStretch(1);
    m_cmdUndo = button(
        "cmdUndo", QStringLiteral("&Undo"),
        QStringLiteral("Take back the last tool, or all that was typed after it (Ctrl-Z: step by step)"),
        [this] { m_session->cmdUndo_Click(); });
    m_cmdRedo =
        button("cmdRedo", QStringLiteral("&Redo"), QStringLiteral("Bring back what Undo took (Ctrl-Y)"),
               [this] { m_session->cmdRedo_Click(); });
    m_cmdUndo->setIcon(themedIcon(QStringLiteral("undo")));
    m_cmdRedo->setIcon(themedIcon(QStringLiteral("redo")));
    layout->addWidget(m_cmdUndo);
    layout->addWidget(m_cmdRedo);
    return bar;
}

/// What the keys do, in the context menu of the text.
void MainWindow::offerUndoInTextBoxes() {
    const auto action = [this](const QPushButton &like, const QString &text, void (frmMain::*command)()) {
        auto *result = new QAction(like.icon(), text, this);
        connect(result, &QAction::triggered, this, [this, command] { std::invoke(command, m_session); });
        return result;
    };
    m_undoAction = action(*m_cmdUndo, QStringLiteral("&Undo\tCtrl+Z"), &frmMain::undoStep);
    m_redoAction = action(*m_cmdRedo, QStringLiteral("&Redo\tCtrl+Y"), &frmMain::cmdRedo_Click);
    for (PlainTextBox *box : {m_txtText1, m_txtTextWW})
        box->setUndoActions(*m_undoAction, *m_redoAction);
}

/// Below what the text box itself offers.
void MainWindow::extendMenu(QMenu &menu) {
    menu.addSeparator();
    for (std::size_t i = 0; i < favourites.size(); ++i) {
        const QString tag = QString::fromUtf16(favourites.at(i).tag);
        menu.addAction(themedIcon(QLatin1StringView(favouriteIcons.at(i))),
                       QString::fromUtf16(favourites.at(i).tooltip), this, [this, tag] {
                           m_session->bRightButton = false;
                           m_session->imgFavourites_Click(tag);
                       });
    }
    menu.addSeparator();
    menu.addAction(QStringLiteral("Copy and Close\tAlt+D"), this, [this] { m_session->cmdClose_Click(); });
    menu.addAction(QStringLiteral("Keyboard shortcuts\tCtrl+?"), this, &MainWindow::showKeySheet);
}

QWidget *MainWindow::buttonRow() {
    auto *bar = new QWidget;
    auto *layout = row(bar);
    auto *refresh =
        button("cmdRefresh", QStringLiteral("Re&fresh with current Clipboard"),
               QStringLiteral("Replace the text by what is on the clipboard now; Undo brings it back"),
               [this] { m_session->cmdRefresh_Click(); });
    refresh->setIcon(themedIcon(QStringLiteral("refresh")));
    layout->addWidget(refresh);
    layout->addStretch(1);
    layout->addWidget(button("cmdCancel", QStringLiteral("Cancel"),
                             QStringLiteral("Close and leave the clipboard as it is (Alt-Q)"),
                             [this] { m_session->cmdCancel_Click(); }));
    auto *close =
        button("cmdClose", QStringLiteral("Copy and Close"),
               QStringLiteral("Put the whole text on the clipboard and close (Alt-D or Ctrl-Shift-C)"),
               [this] { m_session->cmdClose_Click(); });
    close->setDefault(true); // stands out; Return works in the text as ever
    layout->addWidget(close);
    return bar;
}

QWidget *MainWindow::statusRow() {
    auto *bar = new QWidget;
    auto *layout = row(bar);
    m_labStatus = new QLabel;
    m_labStatus->setObjectName(QStringLiteral("labStatus"));
    m_labStatus->setTextFormat(Qt::PlainText);
    m_labStatus->setMinimumWidth(60);
    m_labStatus->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    layout->addWidget(m_labStatus, 1);
    layout->addWidget(new ResizeHandle(this), 0, Qt::AlignBottom);
    return bar;
}

void MainWindow::arrangeTabOrder() {
    QWidget *before = m_txtTextWW;
    setTabOrder(m_txtText1, m_txtTextWW);
    const auto follow = [this, &before](const QString &name) {
        auto *next = findChild<QWidget *>(name);
        setTabOrder(before, next);
        before = next;
    };
    for (const char *name : {"cmdClose", "cmdCancel", "cmdRefresh", "cmdUndo", "cmdRedo"})
        follow(QLatin1StringView(name));
    for (int i = 0; i < CPowerButtonCollection::buttonCount; ++i)
        follow(QStringLiteral("imgPower_%1").arg(i));
    for (int i = 1; i <= cToolbox::rowCount; ++i)
        follow(QStringLiteral("lblToolbox_%1").arg(i));
    for (std::size_t i = 0; i < favourites.size(); ++i)
        follow(QStringLiteral("imgFavourites_%1").arg(i));
    for (const char *name : {"imgWordwrap", "imgOptions", "imgHelp", "imgAbout"})
        follow(QLatin1StringView(name));
    oneStop(QStringLiteral("imgFavourites_%1"), static_cast<int>(favourites.size()));
    oneStop(QStringLiteral("imgPower_%1"), CPowerButtonCollection::buttonCount);
}

/// Makes controls one stop of the Tab key; `name` holds "%1" for their number from 0.
void MainWindow::oneStop(const QString &name, int count) {
    QList<QWidget *> members;
    for (int i = 0; i < count; ++i)
        members += findChild<QWidget *>(name.arg(i));
    new RovingFocus(members, this);
}

} // namespace tolvo
