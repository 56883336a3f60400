// SPDX-License-Identifier: MIT
#include "search/ui/frmSearchResults.h"

#include "search/ui/hit_delegate.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QLabel>
#include <QListView>
#include <QShowEvent>
#include <QStringListModel>
#include <QTimer>
#include <QVBoxLayout>
#include <utility>

namespace tolvo {

frmSearchResults::frmSearchResults(const QFont &textFont, std::function<TextBox &()> txtCurrent,
                                   QWidget *parent)
    : QDialog(parent), m_txtCurrent(std::move(txtCurrent)), labResults(new QLabel(this)),
      lstResults(new QListView(this)), m_lines(new QStringListModel(this)),
      m_delegate(new HitDelegate(this)) {
    setObjectName(QStringLiteral("frmSearchResults"));
    labResults->setObjectName(QStringLiteral("labResults"));
    labResults->setText(QStringLiteral("Choose a line to &see it in the text, Enter to go there:"));
    labResults->setBuddy(lstResults);
    lstResults->setObjectName(QStringLiteral("lstResults"));
    lstResults->setAccessibleName(QStringLiteral("Search results"));
    lstResults->setFont(textFont);
    lstResults->setModel(m_lines);
    lstResults->setItemDelegate(m_delegate);
    lstResults->setUniformItemSizes(true);
    lstResults->setEditTriggers(QAbstractItemView::NoEditTriggers);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(labResults);
    layout->addWidget(lstResults, 1);
    const QSize letter = fontMetrics().size(0, QStringLiteral("x"));
    resize(letter.width() * 80, letter.height() * 20);

    // The focus makes the first line the current one; only what the user does chooses a line.
    lstResults->installEventFilter(this);
    connect(lstResults->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this](const QItemSelection &now) {
                if (!now.isEmpty())
                    selectHit(now.indexes().first().row());
            });
    // A second click on the line where the list stands brings its hit back.
    connect(lstResults, &QListView::clicked, this,
            [this](const QModelIndex &index) { selectHit(index.row()); });
    connect(lstResults, &QListView::doubleClicked, this,
            [this](const QModelIndex &index) { goToHit(index.row()); });
}

void frmSearchResults::showEvent(QShowEvent *event) {
    if (onShow && !event->spontaneous())
        onShow();
    QDialog::showEvent(event);
}

void frmSearchResults::setHits(const QList<HitLine> &lines, const QList<qint32> &locations) {
    QList<HitLine> shown;
    QStringList texts;
    for (const HitLine &line : lines) {
        shown += shownHitLine(line);
        texts += shown.last().text;
    }
    m_delegate->setLines(shown);
    m_lines->setStringList(texts);
    m_locations = locations;
}

void frmSearchResults::setOldHits(const QList<HitLine> &lines) {
    setHits(lines, {});
    lstResults->setEnabled(lines.isEmpty());
    if (!lines.isEmpty())
        labResults->setText(QStringLiteral("These lines are from an earlier search:"));
}

/// The first arrow key chooses the line where the list stands.
bool frmSearchResults::eventFilter(QObject *watched, QEvent *event) {
    if (watched != lstResults || event->type() != QEvent::KeyPress)
        return QDialog::eventFilter(watched, event);
    const auto *stroke = static_cast<QKeyEvent *>(event);
    const int key = stroke->key();
    if (stroke->matches(QKeySequence::Copy)) {
        copyLines();
        return true;
    }
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
        goToHit(lstResults->currentIndex().row());
        return true;
    }
    if (!lstResults->selectionModel()->hasSelection() && lstResults->currentIndex().isValid()) {
        if (key == Qt::Key_Down || key == Qt::Key_Up || key == Qt::Key_Home) {
            lstResults->selectionModel()->select(lstResults->currentIndex(),
                                                 QItemSelectionModel::ClearAndSelect);
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}

void frmSearchResults::selectHit(int row) {
    if (row < 0 || row >= m_locations.size())
        return;
    const HitLocation hit = unpackLocation(m_locations[row]);
    select(m_txtCurrent(), hit.start, hit.length);
    if (onHit)
        onHit();
}

void frmSearchResults::goToHit(int row) {
    if (row < 0 || row >= m_locations.size())
        return;
    selectHit(row);
    accept();
}

void frmSearchResults::copyLines() {
    QGuiApplication::clipboard()->setText(m_lines->stringList().join(u'\n'));
}

SearchResultsWindow::SearchResultsWindow(std::function<QFont()> textFont,
                                         std::function<TextBox &()> txtCurrent, QWidget *parent)
    : m_textFont(std::move(textFont)), m_txtCurrent(std::move(txtCurrent)), m_parent(parent) {
}

void SearchResultsWindow::clear() {
    m_lines.clear();
    m_locations.clear();
    m_isOld = false;
}

void SearchResultsWindow::add(const HitLine &line, qint32 location) {
    m_lines += line;
    m_locations += location;
}

void SearchResultsWindow::show() {
    frmSearchResults window(m_textFont(), m_txtCurrent, m_parent);
    window.setWindowTitle(m_caption);
    if (std::exchange(m_isOld, true))
        window.setOldHits(m_lines);
    else
        window.setHits(m_lines, m_locations);
    window.onShow = [&] {
        if (onShow)
            onShow(window);
    };
    window.onHit = [&] {
        if (onHit)
            onHit(window);
    };
    if (run(window) != QDialog::Accepted)
        return;
    // The search window takes the focus back first.
    QTimer::singleShot(0, &m_later, [this] {
        if (m_parent)
            m_parent->activateWindow();
        m_txtCurrent().setFocus();
    });
}

} // namespace tolvo
