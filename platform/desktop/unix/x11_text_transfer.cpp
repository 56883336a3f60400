// SPDX-License-Identifier: MIT
#include "platform/desktop/unix/x11_text_transfer.h"

#include "platform/desktop/unix/xcb_reply.h"

#include <QDeadlineTimer>
#include <QUrl>

#include <algorithm>
#include <cstring>
#include <poll.h>
#include <string_view>
#include <utility>
#include <xcb/xcb.h>

namespace tolvo {

namespace {

constexpr const char *latin1Target = "STRING";
constexpr const char *addressesTarget = "text/uri-list";

/// The atoms of many names in one round trip.
template <std::size_t count>
std::array<xcb_atom_t, count> atoms(xcb_connection_t *connection,
                                    const std::array<const char *, count> &names) {
    std::array<xcb_intern_atom_cookie_t, count> asked;
    for (std::size_t i = 0; i < count; ++i)
        asked.at(i) =
            xcb_intern_atom(connection, 0, static_cast<uint16_t>(std::strlen(names.at(i))), names.at(i));
    std::array<xcb_atom_t, count> found{};
    for (std::size_t i = 0; i < count; ++i) {
        const Reply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(connection, asked.at(i), nullptr));
        found.at(i) = reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
    }
    return found;
}

/// The text of copied files: their addresses, one a line.
QString textOfAddresses(const QByteArray &list) {
    QStringList addresses;
    for (const QByteArray &line : list.split('\n')) {
        const QByteArray address = line.trimmed();
        if (!address.isEmpty() && !address.startsWith('#'))
            addresses += QUrl::fromEncoded(address).toDisplayString();
    }
    return addresses.join(u'\n') + (addresses.size() > 1 ? QStringLiteral("\n") : QString());
}

} // namespace

X11TextTransfer::X11TextTransfer(Selection selection) {
    int screenNumber = 0;
    m_connection = xcb_connect(nullptr, &screenNumber);
    if (xcb_connection_has_error(m_connection))
        return;
    xcb_screen_iterator_t screens = xcb_setup_roots_iterator(xcb_get_setup(m_connection));
    for (; screenNumber > 0 && screens.rem > 1; --screenNumber)
        xcb_screen_next(&screens);
    m_window = xcb_generate_id(m_connection);
    const uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_create_window(m_connection, XCB_COPY_FROM_PARENT, m_window, screens.data->root, -1, -1, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK, &events);
    const std::array<const char *, 11> names{"UTF8_STRING",
                                             "text/plain;charset=utf-8",
                                             "text/plain;charset=UTF-8",
                                             "text/plain",
                                             latin1Target,
                                             "TEXT",
                                             addressesTarget,
                                             "CLIPBOARD",
                                             "TARGETS",
                                             "TOLVO_TEXT",
                                             "INCR"};
    const auto found = atoms(m_connection, names);
    for (std::size_t i = 0; i < m_targets.size(); ++i)
        m_targets.at(i) = {names.at(i), found.at(i)};
    m_selection = selection == Selection::Primary ? xcb_atom_t{XCB_ATOM_PRIMARY} : found[7];
    m_property = found[9];
    m_incremental = found[10];
    m_step = Step::Targets;
    ask(found[8]);
}

X11TextTransfer::~X11TextTransfer() {
    xcb_disconnect(m_connection);
}

void X11TextTransfer::ask(uint32_t target) {
    xcb_convert_selection(m_connection, m_window, m_selection, target, m_property, XCB_CURRENT_TIME);
    xcb_flush(m_connection);
}

bool X11TextTransfer::advance(int milliseconds) {
    const QDeadlineTimer end(milliseconds);
    while (m_step != Step::Over && !xcb_connection_has_error(m_connection)) {
        const Reply<xcb_generic_event_t> event(xcb_poll_for_event(m_connection));
        if (event) {
            const int type = event->response_type & 0x7F;
            if (type == XCB_SELECTION_NOTIFY) {
                answered(reinterpret_cast<const xcb_selection_notify_event_t *>(event.get())->property ==
                         XCB_ATOM_NONE);
            } else if (type == XCB_PROPERTY_NOTIFY && m_step == Step::Pieces) {
                const auto *property = reinterpret_cast<const xcb_property_notify_event_t *>(event.get());
                if (property->atom == m_property && property->state == XCB_PROPERTY_NEW_VALUE)
                    pieceCame();
            }
            continue;
        }
        if (end.hasExpired())
            return false;
        pollfd readable{xcb_get_file_descriptor(m_connection), POLLIN, 0};
        poll(&readable, 1, static_cast<int>(end.remainingTime()));
    }
    return true;
}

bool X11TextTransfer::ownerHasMoved() {
    return std::exchange(m_moved, false);
}

void X11TextTransfer::answered(bool refused) {
    m_moved = true;
    const Step step = std::exchange(m_step, Step::Over);
    if (refused)
        return;
    bool incremental = false;
    QByteArray data = takeProperty(&incremental);
    if (step == Step::Targets)
        chooseTarget(data);
    else if (incremental)
        m_step = Step::Pieces;
    else
        m_data = std::move(data);
}

void X11TextTransfer::pieceCame() {
    m_moved = true;
    const QByteArray piece = takeProperty();
    m_data += piece;
    if (piece.isEmpty())
        m_step = Step::Over;
}

void X11TextTransfer::chooseTarget(const QByteArray &targets) {
    const auto *first = reinterpret_cast<const uint32_t *>(targets.constData());
    const auto *last = first + static_cast<std::size_t>(targets.size()) / sizeof(uint32_t);
    for (const Target &target : m_targets) {
        if (target.atom != XCB_ATOM_NONE && std::find(first, last, target.atom) != last) {
            m_chosen = target;
            m_step = Step::Text;
            ask(target.atom);
            return;
        }
    }
}

QByteArray X11TextTransfer::takeProperty(bool *incremental) {
    constexpr uint32_t all = 0x1FFFFFFF; // in units of four bytes
    const auto asked =
        xcb_get_property(m_connection, 1, m_window, m_property, XCB_GET_PROPERTY_TYPE_ANY, 0, all);
    const Reply<xcb_get_property_reply_t> reply(xcb_get_property_reply(m_connection, asked, nullptr));
    if (!reply)
        return {};
    if (reply->type == m_incremental) {
        if (incremental)
            *incremental = true;
        return {};
    }
    return {static_cast<const char *>(xcb_get_property_value(reply.get())),
            xcb_get_property_value_length(reply.get())};
}

QString X11TextTransfer::text() const {
    QByteArray data = m_data;
    if (data.endsWith('\0')) // some programs send a terminating NUL as well
        data.chop(1);
    const std::string_view target = m_chosen.name;
    if (target == latin1Target)
        return QString::fromLatin1(data);
    return target == addressesTarget ? textOfAddresses(data) : QString::fromUtf8(data);
}

} // namespace tolvo
