// SPDX-License-Identifier: MIT
#include "spelling/ui/dlgReadDicsProgress.h"

#include <QBoxLayout>
#include <QCoreApplication>
#include <QFontMetrics>
#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QTimer>

namespace tolvo {

namespace {

enum Page { Introduction, Reading, Finished, Failed };

constexpr int animationSteps = 12;
constexpr int animationInterval = 150; ///< milliseconds

/// A row of dots with a longer one running through it.
QString animationText(int step) {
    QString dots(animationSteps, QChar(0x00B7));
    dots[step] = QChar(0x25CF);
    return dots;
}

} // namespace

dlgReadDicsProgress::dlgReadDicsProgress(QWidget *parent)
    : QDialog(parent), m_pages(new QStackedWidget(this)), imgAnimation(new QLabel(this)),
      Timer1(new QTimer(this)), cmdNext(new QPushButton(QStringLiteral("Next"), this)),
      cmdFinish(new QPushButton(QStringLiteral("Finish"), this)),
      cmdCancel(new QPushButton(QStringLiteral("Cancel"), this)) {
    setObjectName(QStringLiteral("dlgReadDicsProgress"));
    setWindowTitle(QStringLiteral("Updating list"));
    setModal(true);
    Timer1->setObjectName(QStringLiteral("Timer1"));
    imgAnimation->setObjectName(QStringLiteral("imgAnimation"));
    imgAnimation->setAccessibleName(QStringLiteral("Reading"));
    imgAnimation->setText(animationText(0));
    m_pages->addWidget(page(
        {QStringLiteral("Tolvo will read the list of installed dictionaries from Microsoft Word. This may "
                        "take a few moments.\r\n\r\nYou should normally only do this once. Repeat after "
                        "installing a new version of Word or adding additional spelling dictionaries."
                        "\r\n\r\nClick Next to continue.")}));
    m_pages->addWidget(
        page({QStringLiteral("Tolvo is reading the list."), QStringLiteral("Please wait...")}));
    static_cast<QBoxLayout *>(m_pages->widget(Reading)->layout())->insertWidget(2, imgAnimation);
    m_pages->addWidget(page({QStringLiteral("Finished."),
                             QStringLiteral("Select the dictionaries you wish to appear in the Quick List by "
                                            "ticking them and choose OK."),
                             QStringLiteral("Click Finish to continue.")}));
    m_pages->addWidget(page({QStringLiteral("An error occurred while reading the list of dictionaries."),
                             QStringLiteral("Click Finish to continue.")}));

    auto *buttons = new QHBoxLayout;
    buttons->addStretch(1);
    cmdNext->setObjectName(QStringLiteral("cmdNext"));
    cmdFinish->setObjectName(QStringLiteral("cmdFinish"));
    cmdCancel->setObjectName(QStringLiteral("cmdCancel"));
    for (QPushButton *button : {cmdNext, cmdFinish, cmdCancel})
        buttons->addWidget(button);
    auto *rows = new QVBoxLayout(this);
    rows->addWidget(m_pages, 1);
    rows->addLayout(buttons);
    connect(cmdNext, &QPushButton::clicked, this, [this] { read(); });
    connect(cmdFinish, &QPushButton::clicked, this, &QDialog::accept);
    connect(cmdCancel, &QPushButton::clicked, this, [this] { reject(); });
    connect(Timer1, &QTimer::timeout, this, [this] {
        m_step = (m_step + 1) % animationSteps;
        imgAnimation->setText(animationText(m_step));
    });
    resize(fontMetrics().averageCharWidth() * 70, fontMetrics().lineSpacing() * 14);
}

QWidget *dlgReadDicsProgress::page(const QStringList &paragraphs) {
    auto *widget = new QWidget(m_pages);
    auto *rows = new QVBoxLayout(widget);
    for (const QString &paragraph : paragraphs) {
        auto *label = new QLabel(QString(paragraph).remove(u'\r'), widget);
        label->setWordWrap(true);
        rows->addWidget(label);
    }
    rows->addStretch(1);
    return widget;
}

void dlgReadDicsProgress::ShowMe(const Work &work) {
    m_work = work;
    m_cancelled = false;
    m_pages->setCurrentIndex(Introduction);
    cmdNext->setEnabled(true);
    cmdNext->setDefault(true);
    cmdFinish->setEnabled(false);
    cmdCancel->setEnabled(true);
    exec();
}

void dlgReadDicsProgress::read() {
    m_pages->setCurrentIndex(Reading);
    cmdNext->setEnabled(false);
    Timer1->start(animationInterval);
    m_reading = true;
    const bool succeeded = m_work([this] {
        QCoreApplication::processEvents();
        return m_cancelled;
    });
    m_reading = false;
    Timer1->stop();
    if (m_cancelled)
        QDialog::reject();
    else
        finish(succeeded);
}

void dlgReadDicsProgress::finish(bool succeeded) {
    m_pages->setCurrentIndex(succeeded ? Finished : Failed);
    cmdCancel->setEnabled(false);
    cmdFinish->setEnabled(true);
    cmdFinish->setDefault(true);
    cmdFinish->setFocus();
}

void dlgReadDicsProgress::reject() {
    m_cancelled = true;
    // The work ends by itself; the window stays until it has.
    if (!m_reading)
        QDialog::reject();
}

} // namespace tolvo
