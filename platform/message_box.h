// SPDX-License-Identifier: MIT
// Message boxes: what the program says to its user and waits for.
#pragma once

#include <QString>

namespace tolvo {

enum class BoxIcon { None, Information, Exclamation, Question, Critical };
enum class BoxButtons { Ok, YesNo };
enum class BoxAnswer { Ok, Yes, No };

struct Box {
    QString text; ///< lines end in CR LF
    BoxIcon icon = BoxIcon::Information;
    QString title = {}; ///< empty: the application's title
    BoxButtons buttons = BoxButtons::Ok;
};

/// Shows boxes, modally. The desktop does it with windows, tolvo-pipe on standard error, the tests by what
/// they expect.
class MessageBoxes {
  public:
    virtual ~MessageBoxes() = default;
    virtual BoxAnswer show(const Box &box) = 0;
};

} // namespace tolvo
