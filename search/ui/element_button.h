// SPDX-License-Identifier: MIT
#pragma once

#include "search/pattern_elements.h"

#include <QToolButton>

namespace tolvo {

class SearchListEdit;

/// The button beside a box of the search window: its menu inserts what the box may hold in the mode that is
/// on.
class ElementButton final : public QToolButton {
    Q_OBJECT

  public:
    /// `name` is that of the box for screen readers.
    ElementButton(SearchText text, SearchListEdit &list, const QString &name, QWidget *parent);

    /// For that mode from now on. The menu is filled when it opens.
    void offer(SearchMode mode, bool specialChars);

  signals:
    void specialCharsWanted();

  private:
    void fill();
    void insert(const PatternElement &element);

    SearchText m_text;
    SearchListEdit &m_list;
    SearchMode m_mode = SearchMode::Simple;
    bool m_specialChars = false;
};

} // namespace tolvo
