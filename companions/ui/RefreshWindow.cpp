// SPDX-License-Identifier: MIT
#include "companions/ui/RefreshWindow.h"

#include "base/application.h"
#include "platform/box_text.h"
#include "widgets/themed_icon.h"

#include <QDesktopServices>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QUrl>
#include <QVBoxLayout>

namespace tolvo {

RefreshWindow::RefreshWindow(QWidget *parent)
    : QDialog(parent), m_text(new QLabel(QStringLiteral("Asking the server..."))),
      m_progress(new QProgressBar), m_download(new QPushButton(QStringLiteral("&Download page"))) {
    setObjectName(QStringLiteral("frmRefresher"));
    setWindowTitle(applicationTitle() + QStringLiteral(" updates"));

    auto *const picture = new QLabel;
    const int size = fontMetrics().height() * 2;
    picture->setPixmap(themedIcon(QStringLiteral("refresh")).pixmap(size, size));
    picture->setAccessibleName(QStringLiteral("Updates"));
    m_text->setObjectName(QStringLiteral("labResult"));
    m_text->setWordWrap(true);
    m_text->setTextFormat(Qt::PlainText);
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_text->setMinimumWidth(fontMetrics().averageCharWidth() * 50);
    m_progress->setRange(0, 0);
    m_progress->setAccessibleName(QStringLiteral("Waiting for the server"));
    m_download->setObjectName(QStringLiteral("cmdDownload"));
    m_download->hide();
    connect(m_download, &QPushButton::clicked, this, [this] { QDesktopServices::openUrl(QUrl(m_address)); });
    auto *const close = new QPushButton(QStringLiteral("&Close"));
    close->setObjectName(QStringLiteral("cmdClose"));
    close->setDefault(true);
    connect(close, &QPushButton::clicked, this, &QDialog::accept);

    auto *const words = new QVBoxLayout;
    words->addWidget(m_text, 1);
    words->addWidget(m_progress);
    auto *const page = new QHBoxLayout;
    page->setSpacing(fontMetrics().height());
    page->addWidget(picture, 0, Qt::AlignTop);
    page->addLayout(words, 1);
    auto *const buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(m_download);
    buttons->addWidget(close);
    auto *const layout = new QVBoxLayout(this);
    layout->setSpacing(fontMetrics().height());
    layout->addLayout(page, 1);
    layout->addLayout(buttons);
}

void RefreshWindow::showOutcome(const RefreshOutcome &outcome) {
    m_text->setText(outcome.messages.isEmpty() ? QStringLiteral("There was nothing to do.")
                                               : boxText(outcome.messages.join(QStringLiteral("\n\n"))));
    m_progress->hide();
    m_address = outcome.download;
    m_download->setVisible(!m_address.isEmpty());
    m_download->setToolTip(m_address);
    adjustSize();
}

} // namespace tolvo
