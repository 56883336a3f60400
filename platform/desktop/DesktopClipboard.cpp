// SPDX-License-Identifier: MIT
#include "platform/desktop/DesktopClipboard.h"

#include "base/utf8.h"
#include "platform/desktop/clipboard_ways.h"

#include <QClipboard>
#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QGuiApplication>
#include <QMimeData>

#include <algorithm>

namespace tolvo {

namespace {

constexpr int stepMilliseconds = 20; // between two repaints of the windows during a wait

/// The clipboard's text as the toolkit reads it, which on Wayland gives up after a second. A text that is
/// offered but doesn't arrive by then is no answer.
std::optional<QString> textOfToolkit(QClipboard::Mode mode) {
    constexpr int givesUpAfter = 900; // milliseconds
    QElapsedTimer timer;
    timer.start();
    const QString text = QGuiApplication::clipboard()->text(mode);
    if (text.isEmpty() && timer.elapsed() > givesUpAfter)
        return std::nullopt;
    return text;
}

/// What there is instead of a text. The owner has answered a moment ago.
ClipboardContent contentWithoutText() {
    const QMimeData *data = clipboardOffers() ? QGuiApplication::clipboard()->mimeData() : nullptr;
    const QStringList formats = data ? data->formats() : QStringList();
    if (formats.isEmpty())
        return ClipboardContent::Nothing;
    const bool picture = std::any_of(formats.begin(), formats.end(), [](const QString &format) {
        return format.startsWith(QLatin1StringView("image/")) ||
               format == QLatin1StringView("application/x-qt-image");
    });
    if (picture)
        return ClipboardContent::Picture;
    if (data->hasUrls())
        return ClipboardContent::Files;
    return data->hasText() ? ClipboardContent::Nothing : ClipboardContent::Other; // an empty text
}

using Selection = TextTransfer::Selection;

} // namespace

DesktopClipboard::DesktopClipboard() = default;
DesktopClipboard::~DesktopClipboard() = default;

bool DesktopClipboard::comesAtOnce() {
    if (clipboardFollowsFocus())
        return false;
    m_begun = transferOf(Selection::Clipboard);
    return !m_begun || m_begun->advance(shortPatience);
}

std::optional<QString> DesktopClipboard::takeText() {
    waitForFirstOffer();
    std::optional<QString> text =
        m_begun ? fetch(std::move(m_begun), 0) : fetch(transferOf(Selection::Clipboard));
    if (!text)
        return text;
    if (onTaken)
        onTaken(text->isEmpty() ? contentWithoutText() : ClipboardContent::Text);
    return m_lineEnds.takeIn(*std::move(text));
}

std::optional<QString> DesktopClipboard::readText() {
    std::optional<QString> text = fetch(transferOf(Selection::Clipboard));
    if (text)
        text = ClipboardLineEnds::comeIn(*std::move(text));
    return text;
}

std::optional<QString> DesktopClipboard::readSelection() {
    auto transfer = transferOf(Selection::Primary);
    std::optional<QString> text =
        transfer ? fetch(std::move(transfer)) : textOfToolkit(QClipboard::Selection);
    if (text)
        text = ClipboardLineEnds::comeIn(*std::move(text));
    return text;
}

void DesktopClipboard::writeText(const QString &text) {
    putOnClipboard(m_lineEnds.goOut(text));
}

bool DesktopClipboard::needsInputToWrite() {
    return clipboardNeedsInput();
}

void DesktopClipboard::replaceOwnText(const QString &text) {
    if (!needsInputToWrite()) {
        writeText(text);
    } else if (QGuiApplication::clipboard()->ownsClipboard()) {
        // The object is the one that writeText has given away; the window system asks it at each paste.
        auto *own = const_cast<QMimeData *>(QGuiApplication::clipboard()->mimeData());
        for (const QString &format : own->formats()) { // with and without a character set
            if (format.startsWith(QLatin1StringView("text/plain")))
                own->setData(format, utf8Of(m_lineEnds.goOut(text)));
        }
    }
}

/// The text that a transfer brings; without a transfer, the text that the toolkit reads. The wait is
/// announced after `patience` milliseconds.
std::optional<QString> DesktopClipboard::fetch(std::unique_ptr<TextTransfer> transfer, int patience) {
    if (!transfer)
        return textOfToolkit(QClipboard::Clipboard);
    if (!transfer->advance(patience)) {
        if (onWaiting)
            onWaiting(true);
        const bool came = waitFor(*transfer);
        if (onWaiting)
            onWaiting(false);
        if (!came) {
            m_unanswered.push_back(std::move(transfer));
            return std::nullopt;
        }
    }
    return transfer->text();
}

/// Waits with the windows painted; false if the owner gives no sign of life or the user ends the wait.
bool DesktopClipboard::waitFor(TextTransfer &transfer) const {
    const std::shared_ptr<void> guard = guardInput ? guardInput() : nullptr;
    QDeadlineTimer end(ownerMilliseconds);
    while (!transfer.advance(stepMilliseconds)) {
        QCoreApplication::processEvents(guard ? QEventLoop::AllEvents : QEventLoop::ExcludeUserInputEvents);
        if (transfer.ownerHasMoved())
            end.setRemainingTime(ownerMilliseconds);
        if (end.hasExpired() || (guard && cancelled && cancelled()))
            return false;
    }
    return true;
}

} // namespace tolvo
