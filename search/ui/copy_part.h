// SPDX-License-Identifier: MIT
#pragma once

#include "search/ui/search_list_edit.h"

class QGridLayout;
class QLabel;
class QPushButton;
class QRadioButton;

namespace tolvo {

/// The part of the search window that copies all matches: what each becomes, and where the copy goes. It
/// takes the place of the replacement.
struct CopyPart {
    QLabel *labForm;
    SearchListEdit *cmbForm;
    QWidget *fraCopyTo;
    QRadioButton *optToClipboard;
    QRadioButton *optInPlace;

    /// Adds its rows to the grid of the texts, labels in the first column. Where the choice of where the copy
    /// goes is wider than `room`, one option is above the other.
    CopyPart(QGridLayout &grid, int row, QWidget &parent, int room);

    void setVisible(bool visible);
    void show(const QString &form, bool inPlace);
};

/// "Copy matches", with a key of its own. Where the part is not shown yet, the button opens it.
[[nodiscard]] QPushButton *makeCopyButton(QWidget &window);
void showPurpose(QPushButton &cmdCopyMatches, bool opens);

} // namespace tolvo
