// SPDX-License-Identifier: MIT
#include "companions/ui/AdvisorWindow.h"

#include "base/application.h"
#include "companions/tip_links.h"
#include "platform/kept_free.h"
#include "widgets/themed_icon.h"

#include <QCheckBox>
#include <QFrame>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QStyle>
#include <QVBoxLayout>

namespace tolvo {

AdvisorWindow::AdvisorWindow(SettingsStore &store, QWidget *parent)
    : QDialog(parent), m_walk(store), m_title(new QLabel), m_text(new QLabel), m_number(new QLabel) {
    setObjectName(QStringLiteral("frmAdvisor"));
    setWindowTitle(QStringLiteral("Tips for ") + applicationTitle());
    setAttribute(Qt::WA_ShowWithoutActivating);

    auto *const showAtStartup = new QCheckBox(QStringLiteral("&Show tips at startup"));
    showAtStartup->setObjectName(QStringLiteral("chkShowTips"));
    showAtStartup->setChecked(m_walk.showAtStartup());
    connect(showAtStartup, &QCheckBox::toggled, this, [this](bool show) { m_walk.setShowAtStartup(show); });

    auto *const previous = new QPushButton(QStringLiteral("&Previous"));
    previous->setObjectName(QStringLiteral("cmdPrevious"));
    connect(previous, &QPushButton::clicked, this, [this] {
        m_walk.previous();
        showTip();
    });
    auto *const next = new QPushButton(QStringLiteral("&Next"));
    next->setObjectName(QStringLiteral("cmdNext"));
    next->setDefault(true);
    connect(next, &QPushButton::clicked, this, [this] {
        m_walk.next();
        showTip();
    });
    auto *const close = new QPushButton(QStringLiteral("&Close"));
    close->setObjectName(QStringLiteral("cmdClose"));
    connect(close, &QPushButton::clicked, this, &QDialog::accept);

    auto *const buttons = new QHBoxLayout;
    buttons->addStretch();
    for (QPushButton *const button : {previous, next, close})
        buttons->addWidget(button);
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(makePage(), 1);
    layout->addWidget(showAtStartup);
    layout->addLayout(buttons);
    next->setFocus();
    showTip();

    // Narrow enough to stand beside the main window, high enough for the longest tip: it keeps its size.
    const int width = std::max(fontMetrics().averageCharWidth() * 56, minimumSizeHint().width());
    resize(width, std::max(sizeHint().height(), layout->totalHeightForWidth(width)));
}

QWidget *AdvisorWindow::makePage() {
    auto *const page = new QFrame;
    page->setFrameShape(QFrame::StyledPanel);
    page->setBackgroundRole(QPalette::Base);
    page->setAutoFillBackground(true);

    auto *const picture = new QLabel;
    const int size = fontMetrics().height() * 3;
    picture->setPixmap(themedIcon(QStringLiteral("tolvo")).pixmap(size, size));
    picture->setAccessibleName(applicationTitle());

    QFont large = font();
    large.setPointSizeF(large.pointSizeF() * 1.35);
    large.setBold(true);
    m_title->setFont(large);
    m_title->setObjectName(QStringLiteral("labTitle"));
    m_title->setWordWrap(true);
    m_text->setObjectName(QStringLiteral("labTip"));
    m_text->setWordWrap(true);
    m_text->setTextFormat(Qt::PlainText);
    m_text->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_text->setMinimumHeight(fontMetrics().lineSpacing() * 8);
    m_number->setObjectName(QStringLiteral("labNumber"));

    auto *const words = new QVBoxLayout;
    words->setSpacing(fontMetrics().height() / 2);
    words->addWidget(m_title);
    words->addWidget(m_text, 1);
    words->addWidget(m_number);
    auto *const layout = new QHBoxLayout(page);
    const int margin = fontMetrics().height();
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->setSpacing(margin);
    layout->addWidget(picture, 0, Qt::AlignTop);
    layout->addLayout(words, 1);
    return page;
}

void AdvisorWindow::offerTools(const QList<Catalogue::PanelItem> &tools,
                               std::function<void(const QString &)> run) {
    m_tools = tools;
    m_text->setTextFormat(Qt::RichText);
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::LinksAccessibleByMouse |
                                    Qt::LinksAccessibleByKeyboard);
    connect(m_text, &QLabel::linkActivated, this, std::move(run));
    showTip();
}

void AdvisorWindow::showBeside(const QList<QRect> &areas) {
    const QScreen *screen = areas.isEmpty() ? nullptr : QGuiApplication::screenAt(areas.first().center());
    if (screen != nullptr) {
        // The window manager's frame is not known before the window is shown.
        constexpr int edge = 4;
        const QSize frame(2 * edge, style()->pixelMetric(QStyle::PM_TitleBarHeight) + edge);
        move(placeBeside(areas, size() + frame, screen->availableGeometry()));
    }
    show();
}

void AdvisorWindow::showTip() {
    m_title->setText(QString::fromUtf16(m_walk.tip().title));
    const QString text = QString::fromUtf16(m_walk.tip().text);
    m_text->setText(m_tools.isEmpty() ? text : withToolLinks(text, m_tools));
    m_number->setText(QStringLiteral("Tip %1 of %2").arg(m_walk.place() + 1).arg(tips().size()));
}

} // namespace tolvo
