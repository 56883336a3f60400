// SPDX-License-Identifier: MIT
#include "search/ui/frmSearchResults.h"

#include "search/result_lines.h"

#include <QItemSelectionModel>
#include <QLabel>
#include <QListView>
#include <QStringListModel>
#include <QVBoxLayout>

namespace tolvo {

frmSearchResults::frmSearchResults(const QFont &textFont, std::function<TextBox &()> txtCurrent,
                                   QWidget *parent)
    : QDialog(parent), m_txtCurrent(std::move(txtCurrent)), labResults(new QLabel(this)),
      lstResults(new QListView(this)), m_lines(new QStringListModel(this)) {
    setObjectName(QStringLiteral("frmSearchResults"));
    labResults->setObjectName(QStringLiteral("labResults"));
    labResults->setText(tr("Choose a line to &see it in the text:"));
    labResults->setBuddy(lstResults);
    lstResults->setObjectName(QStringLiteral("lstResults"));
    lstResults->setAccessibleName(tr("Search results"));
    lstResults->setFont(textFont);
    lstResults->setModel(m_lines);
    lstResults->setUniformItemSizes(true);
    lstResults->setEditTriggers(QAbstractItemView::NoEditTriggers);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(labResults);
    layout->addWidget(lstResults, 1);
    const QSize letter = fontMetrics().size(0, QStringLiteral("x"));
    resize(letter.width() * 80, letter.height() * 20);

    connect(lstResults->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex &now) { selectHit(now.row()); });
    // A second click on the line where the list stands brings its hit back.
    connect(lstResults, &QListView::clicked, this,
            [this](const QModelIndex &index) { selectHit(index.row()); });
}

void frmSearchResults::setHits(const QStringList &lines, const QList<qint32> &locations) {
    m_locations = {};
    m_lines->setStringList(lines);
    m_locations = locations;
}

void frmSearchResults::selectHit(int row) {
    if (row < 0 || row >= m_locations.size())
        return;
    const HitLocation hit = unpackLocation(m_locations[row]);
    select(m_txtCurrent(), hit.start, hit.length);
}

SearchResultsWindow::SearchResultsWindow(std::function<QFont()> textFont,
                                         std::function<TextBox &()> txtCurrent, QWidget *parent)
    : m_textFont(std::move(textFont)), m_txtCurrent(std::move(txtCurrent)), m_parent(parent) {
}

void SearchResultsWindow::clear() {
    m_lines.clear();
    m_locations.clear();
}

void SearchResultsWindow::add(const QString &line, qint32 location) {
    m_lines += line;
    m_locations += location;
}

void SearchResultsWindow::show() {
    frmSearchResults window(m_textFont(), m_txtCurrent, m_parent);
    window.setWindowTitle(m_caption);
    window.setHits(m_lines, m_locations);
    window.exec();
}

} // namespace tolvo
