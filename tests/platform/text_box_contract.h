// SPDX-License-Identifier: MIT
// What every text box keeps to. A program with text boxes of its own compiles text_box_contract.cpp and says
// which ones it has.
#pragma once

#include "platform/text_box.h"

#include <QDebug>

#include <functional>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

/// Failures show texts readably.
inline void PrintTo(const QString &text, std::ostream *out) {
    *out << QDebug::toString(text).toStdString();
}

namespace tolvo {

struct TextBoxKind {
    std::string name;
    std::function<std::unique_ptr<TextBox>()> make;
};

std::vector<TextBoxKind> textBoxKinds();

} // namespace tolvo
