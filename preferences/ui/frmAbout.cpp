// SPDX-License-Identifier: MIT
#include "preferences/ui/frmAbout.h"

#include "base/application.h"
#include "platform/message_box.h"
#include "platform/processes.h"
#include "platform/system_information.h"
#include "preferences/ui/ThirdPartiesWindow.h"
#include "widgets/LinkLabel.h"

#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QUrl>
#include <QVBoxLayout>

namespace tolvo {
namespace {

/// Stands for a window of ours where others have an address.
const QString thirdPartiesLink = QStringLiteral("#third-parties");

} // namespace

frmAbout::frmAbout(Processes &processes, MessageBoxes &boxes, const QDate &built, QWidget *parent)
    : QDialog(parent), m_processes(processes), m_boxes(boxes) {
    setObjectName(QStringLiteral("frmAbout"));
    setWindowTitle(QStringLiteral("About ") + applicationTitle());

    auto *picture = new QLabel;
    picture->setPixmap(QIcon(QStringLiteral(":/icons/tolvo.svg")).pixmap(72, 72));
    auto *title = new QLabel(applicationTitle());
    QFont large = title->font();
    large.setPointSizeF(large.pointSizeF() * 1.8);
    large.setBold(true);
    title->setFont(large);
    auto *version = new QLabel(QStringLiteral("Version %1 Build %2 (%3)")
                                   .arg(applicationVersionMajorMinor(), applicationRevision(),
                                        QLocale().toString(built, QLocale::ShortFormat)));
    version->setObjectName(QStringLiteral("lblVersion"));
    version->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto *copyright = new QLabel(
        QStringLiteral("Copyright %1 The Tolvo developers").arg(built.toString(QStringLiteral("yyyy"))));
    copyright->setObjectName(QStringLiteral("lblCopyright"));

    auto *text = m_text = new QVBoxLayout;
    text->setSpacing(6);
    for (QLabel *label : {title, version, copyright})
        text->addWidget(label);
    text->addSpacing(8);
    text->addWidget(link("lblWeb", QStringLiteral(TOLVO_HOME_PAGE), QStringLiteral(TOLVO_HOME_PAGE)));
    text->addWidget(
        link("lblSupport", QStringLiteral(TOLVO_SUPPORT), QStringLiteral("mailto:" TOLVO_SUPPORT)));
    text->addWidget(link("lblThirdParties", QStringLiteral("Third-party software"), thirdPartiesLink));
    auto *top = new QHBoxLayout;
    top->setSpacing(20);
    top->addWidget(picture, 0, Qt::AlignTop);
    top->addLayout(text, 1);

    auto *sysInfo = new QPushButton(QStringLiteral("&System Info..."));
    sysInfo->setObjectName(QStringLiteral("cmdSysInfo"));
    connect(sysInfo, &QPushButton::clicked, this, &frmAbout::cmdSysInfo_Click);
    auto *ok = new QPushButton(QStringLiteral("OK"));
    ok->setObjectName(QStringLiteral("cmdOK"));
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(sysInfo);
    buttons->addStretch(1);
    buttons->addWidget(ok);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 20, 20, 14);
    layout->setSpacing(18);
    layout->addLayout(top);
    layout->addLayout(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    ok->setFocus();
}

void frmAbout::offerManual(const QString &path) {
    m_text->addWidget(link("lblManual", QStringLiteral("Manual"),
                           QString::fromLatin1(QUrl::fromLocalFile(path).toEncoded())));
}

QLabel *frmAbout::link(const char *name, const QString &text, const QString &address) {
    auto *label = new LinkLabel(text, address, LinkLabel::Underline::UnderPointer);
    label->setObjectName(QLatin1StringView(name));
    connect(label, &QLabel::linkActivated, this, &frmAbout::follow);
    return label;
}

void frmAbout::follow(const QString &address) {
    if (address == thirdPartiesLink)
        ThirdPartiesWindow(m_processes, this).exec();
    else
        m_processes.open(address);
}

void frmAbout::cmdSysInfo_Click() {
    if (!StartSysInfo(m_processes))
        m_boxes.show({.text = QStringLiteral("System Information is unavailable")});
}

} // namespace tolvo
