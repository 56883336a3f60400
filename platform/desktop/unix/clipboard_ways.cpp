// SPDX-License-Identifier: MIT
#include "platform/desktop/clipboard_ways.h"

#include "platform/desktop/unix/x11_selection.h"
#include "platform/desktop/unix/x11_text_transfer.h"

#include <QClipboard>
#include <QEventLoop>
#include <QGuiApplication>
#include <QMimeData>
#include <QTimer>
#include <QWindow>

namespace tolvo {

namespace {

constexpr int offerMilliseconds = 500;  // how long the first offer may take after the window is shown
constexpr int settleMilliseconds = 100; // how long it may take once the window has the focus

bool isWayland() {
    return QGuiApplication::platformName().startsWith(QStringLiteral("wayland"));
}

} // namespace

bool hasClipboard() {
    return qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY") ||
           qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
}

bool clipboardFollowsFocus() {
    // That holds for X11 programs under a Wayland compositor too.
    return isWayland() || (isX11() && qEnvironmentVariableIsSet("WAYLAND_DISPLAY"));
}

bool clipboardNeedsInput() {
    return isWayland(); // which wants the serial number of an input event
}

bool clipboardOffers() {
    if (isX11())
        return x11ClipboardHasOwner();
    const QMimeData *data = QGuiApplication::clipboard()->mimeData();
    return data && !data->formats().isEmpty();
}

void waitForFirstOffer() {
    if (!clipboardFollowsFocus() || QGuiApplication::focusWindow())
        return;
    QEventLoop loop;
    QTimer settled;
    settled.setSingleShot(true);
    QObject::connect(&settled, &QTimer::timeout, &loop, &QEventLoop::quit);
    QObject::connect(qGuiApp, &QGuiApplication::focusWindowChanged, &loop, [&](const QWindow *focus) {
        // The offer comes before the focus; under X11 it is fetched by the compositor only after it.
        if (focus && !isX11())
            settled.start(settleMilliseconds);
    });
    QObject::connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, &loop, [&] {
        if (clipboardOffers())
            loop.quit();
    });
    QTimer::singleShot(offerMilliseconds, &loop, &QEventLoop::quit);
    if (!clipboardOffers())
        loop.exec(QEventLoop::ExcludeUserInputEvents);
}

std::unique_ptr<TextTransfer> transferOf(TextTransfer::Selection selection) {
    const QClipboard &clipboard = *QGuiApplication::clipboard();
    if (!isX11() || (selection == TextTransfer::Selection::Clipboard ? clipboard.ownsClipboard()
                                                                     : clipboard.ownsSelection()))
        return nullptr;
    return std::make_unique<X11TextTransfer>(selection);
}

void putOnClipboard(const QString &text) {
    // No clear before a new text: it would hide from the keeper of an earlier session that it has lost the
    // clipboard.
    if (text.isEmpty())
        QGuiApplication::clipboard()->clear();
    else
        QGuiApplication::clipboard()->setText(text);
}

} // namespace tolvo
