// SPDX-License-Identifier: MIT
#pragma once

#include "search/search_host.h"

#include <QDialog>
#include <QFont>
#include <functional>

class QLabel;
class QListView;
class QStringListModel;

namespace tolvo {

/// The hits of a Find All. A click on one selects it in the text; the window stays open.
class frmSearchResults final : public QDialog {
    Q_OBJECT

  public:
    frmSearchResults(const QFont &textFont, std::function<TextBox &()> txtCurrent, QWidget *parent);

    /// One line and one packed location for each hit.
    void setHits(const QStringList &lines, const QList<qint32> &locations);
    /// The lines of another search: they can be read, but lead nowhere.
    void setOldHits(const QStringList &lines);

  protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

  private:
    void selectHit(int row);

    std::function<TextBox &()> m_txtCurrent;
    QList<qint32> m_locations;
    QLabel *labResults;
    QListView *lstResults;
    QStringListModel *m_lines;
};

/// Collects hits, and makes the window when it is first shown.
class SearchResultsWindow final : public SearchResults {
  public:
    /// `textFont` is asked for each time the list is shown. `parent` outlives this.
    SearchResultsWindow(std::function<QFont()> textFont, std::function<TextBox &()> txtCurrent,
                        QWidget *parent);

    void clear() override;
    void add(const QString &line, qint32 location) override;
    void setCaption(const QString &caption) override { m_caption = caption; }
    void show() override;

  private:
    std::function<QFont()> m_textFont;
    std::function<TextBox &()> m_txtCurrent;
    QWidget *m_parent;
    QStringList m_lines;
    QList<qint32> m_locations;
    QString m_caption;
    bool m_isOld = true; ///< nothing has been listed since the list was last shown
};

} // namespace tolvo
