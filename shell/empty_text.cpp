// SPDX-License-Identifier: MIT
#include "shell/empty_text.h"

namespace tolvo {

namespace {

QString whatItHeld(ClipboardContent held) {
    switch (held) {
    case ClipboardContent::Text:
        break;
    case ClipboardContent::Nothing:
        return QStringLiteral("The clipboard was empty.\n\n");
    case ClipboardContent::Picture:
        return QStringLiteral("The clipboard held a picture.\n\n");
    case ClipboardContent::Files:
        return QStringLiteral("The clipboard held files.\n\n");
    case ClipboardContent::Other:
        return QStringLiteral("The clipboard held no text.\n\n");
    }
    return {};
}

} // namespace

QString emptyTextHint(ClipboardContent held) {
    return whatItHeld(held) +
           QStringLiteral("Paste or type a text. Tools on the left work on all of it or on the selection.");
}

} // namespace tolvo
