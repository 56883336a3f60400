// SPDX-License-Identifier: MIT
#include "platform/desktop/DesktopClipboard.h"

#include "platform/desktop/x11_selection.h"

#include <QClipboard>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QGuiApplication>
#include <QMimeData>
#include <QTimer>
#include <QWindow>

namespace tolvo {

namespace {

constexpr int offerMilliseconds = 500;    // how long the first offer after the window's show may take
constexpr int settleMilliseconds = 100;   // how long it may take once the window has the focus
constexpr int patienceMilliseconds = 300; // how long an owner may take before we say that we wait

/// Whether what is on the clipboard is shown only to the program that has the focus. X11 programs under a
/// Wayland compositor are in the same place.
bool clipboardFollowsFocus() {
    return QGuiApplication::platformName().startsWith(QStringLiteral("wayland")) ||
           (isX11() && qEnvironmentVariableIsSet("WAYLAND_DISPLAY"));
}

bool clipboardOffers() {
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

/// Whether the clipboard's owner answers. Reading from one that doesn't would stand still for a quarter of a
/// minute, so X11 owners are first asked what they have. Wayland's reads end by themselves after a second.
bool ownerAnswers(int ownerMilliseconds, const std::function<void(bool)> &onWaiting) {
    if (!isX11() || QGuiApplication::clipboard()->ownsClipboard())
        return true;
    X11SelectionProbe probe;
    if (probe.waitForAnswer(patienceMilliseconds))
        return true;
    if (onWaiting)
        onWaiting(true);
    bool answered = false;
    for (const QDeadlineTimer end(ownerMilliseconds); !answered && !end.hasExpired();) {
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
        answered = probe.waitForAnswer(20);
    }
    if (onWaiting)
        onWaiting(false);
    return answered;
}

} // namespace

QString DesktopClipboard::takeText() {
    waitForFirstOffer();
    return m_lineEnds.takeIn(fetch());
}

QString DesktopClipboard::readText() {
    return ClipboardLineEnds::comeIn(fetch());
}

void DesktopClipboard::writeText(const QString &text) {
    // A clear before a new text would hide from an older owner, still alive to serve it, that it has lost the
    // clipboard.
    if (text.isEmpty())
        QGuiApplication::clipboard()->clear();
    else
        QGuiApplication::clipboard()->setText(m_lineEnds.goOut(text));
}

QString DesktopClipboard::fetch() {
    return ownerAnswers(ownerMilliseconds, onWaiting) ? QGuiApplication::clipboard()->text() : QString();
}

} // namespace tolvo
