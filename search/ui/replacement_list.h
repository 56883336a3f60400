// SPDX-License-Identifier: MIT
#pragma once

#include "search/found_matches.h"

#include <QTreeWidget>
#include <functional>

namespace tolvo {

/// Matches beside what would take their place. What has no shape is shown as an escape.
class ReplacementList final : public QTreeWidget {
  public:
    static constexpr qsizetype mostRows = 50;

    ReplacementList(const QString &name, QWidget *parent);

    /// Shows the matches of a text, at most mostRows.
    void showReplacements(const QString &text, const QList<PreviewedReplacement> &replacements);
    /// Called when the user chooses a match, by a click or Enter.
    std::function<void(RegularExpression::Span)> onChosen;

    [[nodiscard]] QSize sizeHint() const override;

  protected:
    void keyPressEvent(QKeyEvent *event) override;

  private:
    void choose(QTreeWidgetItem *item);
    void addRow(const QString &before, const QString &after);

    QList<RegularExpression::Span> m_places;
};

} // namespace tolvo
