// SPDX-License-Identifier: MIT
// Message boxes: messages that wait for an answer.
#pragma once

#include <QString>

namespace tolvo {

enum class BoxIcon { None, Information, Exclamation, Question, Critical };
enum class BoxButtons { Ok, YesNo };
enum class BoxAnswer { Ok, Yes, No };

/// One box.
struct Box {
    QString text; ///< lines end in CR LF
    BoxIcon icon = BoxIcon::Information;
    QString title = {}; ///< empty: the application's title
    BoxButtons buttons = BoxButtons::Ok;
};

/// Shows boxes: as modal windows on the desktop, on standard error in tolvo-pipe, against expectations in the
/// tests.
class MessageBoxes {
  public:
    virtual ~MessageBoxes() = default;
    /// Shows a box and returns its answer.
    virtual BoxAnswer show(const Box &box) = 0;
};

} // namespace tolvo
