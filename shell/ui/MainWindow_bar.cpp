// SPDX-License-Identifier: MIT
// The bar above the text, and the menu that offers the same.
#include "shell/cToolbox.h"
#include "shell/frmMain.h"
#include "shell/ui/ImageButton.h"
#include "shell/ui/MainWindow.h"
#include "shell/ui/any_click.h"
#include "shell/ui/names_under_icons.h"
#include "widgets/FoldingRow.h"
#include "widgets/themed_icon.h"

#include <QMenu>
#include <array>

namespace tolvo {

namespace {

/// Icons of the favourites, in the order of the bar.
constexpr std::array<const char *, favourites.size()> favouriteIcons{
    "indent",    "unindent",     "title-case",    "plain-punctuation", "trim",          "spelling",
    "paragraph", "remove-lines", "numbered-list", "bullet-list",       "trim-and-space"};

/// What stands under them.
constexpr std::array<const char16_t *, favourites.size()> shortNames{
    u"Indent",    u"Unindent",    u"Title case", u"Plain",       u"Trim",        u"Spelling",
    u"Paragraph", u"Extra lines", u"Numbered",   u"Bullet list", u"Single space"};

/// Favourites that belong together stand side by side.
constexpr std::size_t groupSize = 2;

} // namespace

ImageButton *MainWindow::imageButton(const char *name, const char *icon, const QString &tip,
                                     std::function<void(bool)> clicked) {
    auto *image = new ImageButton(QLatin1StringView(icon), tip);
    image->setObjectName(QLatin1StringView(name));
    new AnyClick(image, [this, clicked = std::move(clicked)](bool right) {
        if (m_session)
            clicked(right);
    });
    return image;
}

QWidget *MainWindow::topBar() {
    auto *bar = new QWidget;
    auto *layout = new FoldingRow(bar);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    for (std::size_t i = 0; i < favourites.size(); ++i) {
        if (i > 0 && i % groupSize == 0)
            layout->addWidget(new GroupLine);
        const QString tag = QString::fromUtf16(favourites.at(i).tag);
        auto *favourite = imageButton(QStringLiteral("imgFavourites_%1").arg(i).toLatin1().constData(),
                                      favouriteIcons.at(i), QString::fromUtf16(favourites.at(i).tooltip),
                                      [this, tag](bool right) {
                                          m_session->bRightButton = right;
                                          m_session->imgFavourites_Click(tag);
                                      });
        favourite->setShortName(QString::fromUtf16(shortNames.at(i)));
        layout->addWidget(favourite);
    }
    layout->addStretch(1);
    auto *wrap = imageButton("imgWordwrap", "word-wrap", QStringLiteral("Toggle word wrap"), [this](bool) {
        m_session->imgWordwrap_Click();
        m_imgWordwrap->setChecked(m_session->bWordWrap);
    });
    m_imgWordwrap = wrap;
    m_imgWordwrap->setToolTip(QStringLiteral("Toggle word wrap (Alt-W)"));
    m_imgWordwrap->setCheckable(true);
    auto *options = imageButton("imgOptions", "options", QStringLiteral("Options"), [this](bool right) {
        m_session->bRightButton = right;
        m_session->imgOptions_Click();
    });
    options->setToolTip(QStringLiteral("Options (Ctrl-O)\nRight click: switch the font"));
    auto *help =
        imageButton("imgHelp", "help", QStringLiteral("Help"), [this](bool) { m_session->imgHelp_Click(); });
    help->setToolTip(QStringLiteral("Help (F1)"));
    auto *about = imageButton("imgAbout", "about", QStringLiteral("About"),
                              [this](bool) { m_session->imgAbout_Click(); });
    wrap->setShortName(QStringLiteral("Word wrap"));
    for (ImageButton *button : {options, help, about})
        button->setShortName(button->accessibleName());
    for (ImageButton *button : {wrap, options, help, about})
        layout->addWidget(button);
    m_iconNames = new NamesUnderIcons(*bar);
    return bar;
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
    m_iconNames->extendMenu(*menu.addMenu(QStringLiteral("Bar of icons")));
    menu.addSeparator();
    menu.addAction(QStringLiteral("Copy and Close\tAlt+D"), this, [this] { m_session->cmdClose_Click(); });
    menu.addAction(QStringLiteral("Keyboard shortcuts\tCtrl+?"), this, &MainWindow::showKeySheet);
}

} // namespace tolvo
