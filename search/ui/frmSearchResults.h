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

class HitDelegate;

/// The hits of a Find All. A click on one selects it in the text; the window stays open. Enter and a double
/// click end it as accepted, with the hit selected; Ctrl-C copies all lines.
class frmSearchResults final : public QDialog {
    Q_OBJECT

  public:
    frmSearchResults(const QFont &textFont, std::function<TextBox &()> txtCurrent, QWidget *parent);

    /// One line and one packed location for each hit.
    void setHits(const QList<HitLine> &lines, const QList<qint32> &locations);
    /// The lines of another search: they can be read, but lead nowhere.
    void setOldHits(const QList<HitLine> &lines);

    std::function<void()> onShow; ///< about to be shown, with its size
    std::function<void()> onHit;  ///< a hit has been selected in the text

  protected:
    void showEvent(QShowEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

  private:
    void selectHit(int row);
    void goToHit(int row);
    void copyLines();

    std::function<TextBox &()> m_txtCurrent;
    QList<qint32> m_locations;
    QLabel *labResults;
    QListView *lstResults;
    QStringListModel *m_lines;
    HitDelegate *m_delegate;
};

/// Collects hits, and makes the window when it is first shown.
class SearchResultsWindow final : public SearchResults {
  public:
    /// `textFont` is asked for each time the list is shown. `parent` outlives this.
    SearchResultsWindow(std::function<QFont()> textFont, std::function<TextBox &()> txtCurrent,
                        QWidget *parent);

    void clear() override;
    void add(const HitLine &line, qint32 location) override;
    void setCaption(const QString &caption) override { m_caption = caption; }
    void show() override;

    /// Shows the list until it is over, as a modal window if nothing else is said, and gives its result.
    std::function<int(QDialog &)> run = [](QDialog &list) { return list.exec(); };
    std::function<void(QWidget &)> onShow; ///< places the list
    std::function<void(QWidget &)> onHit;  ///< a hit has been selected; the list may lie over it

  private:
    std::function<QFont()> m_textFont;
    std::function<TextBox &()> m_txtCurrent;
    QWidget *m_parent;
    QList<HitLine> m_lines;
    QList<qint32> m_locations;
    QString m_caption;
    QObject m_later;     ///< what is to come goes with it
    bool m_isOld = true; ///< nothing has been listed since the list was last shown
};

} // namespace tolvo
