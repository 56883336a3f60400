// SPDX-License-Identifier: MIT
#include "platform/desktop/clipboard_ways.h"

#include "platform/desktop/windows/WindowsTextTransfer.h"
#include "platform/desktop/windows/system_text.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

#include <windows.h>

namespace tolvo {

namespace {

/// Another platform plugin has a clipboard of its own.
bool isSystemClipboard() {
    return QGuiApplication::platformName() == QStringLiteral("windows");
}

} // namespace

bool hasClipboard() {
    return true;
}

bool clipboardFollowsFocus() {
    return false;
}

bool clipboardNeedsInput() {
    return false;
}

bool clipboardOffers() {
    return isSystemClipboard() ? CountClipboardFormats() > 0
                               : !QGuiApplication::clipboard()->mimeData()->formats().isEmpty();
}

void waitForFirstOffer() {
}

std::unique_ptr<TextTransfer> transferOf(TextTransfer::Selection selection) {
    if (!isSystemClipboard() || selection == TextTransfer::Selection::Primary)
        return nullptr;
    return std::make_unique<WindowsTextTransfer>();
}

void putOnClipboard(const QString &text) {
    constexpr int patience = 1000; // milliseconds
    if (isSystemClipboard())
        putSystemText(text, patience);
    else
        QGuiApplication::clipboard()->setText(text);
}

} // namespace tolvo
