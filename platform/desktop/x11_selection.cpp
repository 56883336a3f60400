// SPDX-License-Identifier: MIT
#include "platform/desktop/x11_selection.h"

#include <QDeadlineTimer>
#include <QGuiApplication>

#include <cstdlib>
#include <memory>
#include <poll.h>
#include <string_view>
#include <xcb/xcb.h>

namespace tolvo {

namespace {

struct Free {
    void operator()(void *memory) const { std::free(memory); }
};
template <class T>
using Reply = std::unique_ptr<T, Free>;

xcb_atom_t atom(xcb_connection_t *connection, std::string_view name) {
    const auto asked = xcb_intern_atom(connection, 0, static_cast<uint16_t>(name.size()), name.data());
    const Reply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(connection, asked, nullptr));
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

} // namespace

bool isX11() {
    return QGuiApplication::platformName() == QStringLiteral("xcb");
}

bool ownsX11Clipboard() {
    auto *native = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (!native)
        return false;
    xcb_connection_t *connection = native->connection();
    const auto asked = xcb_get_selection_owner(connection, atom(connection, "CLIPBOARD"));
    const Reply<xcb_get_selection_owner_reply_t> reply(
        xcb_get_selection_owner_reply(connection, asked, nullptr));
    if (!reply || reply->owner == XCB_WINDOW_NONE)
        return false;
    // The window belongs to us if its number is of the range that the server gave our connection.
    const xcb_setup_t *setup = xcb_get_setup(connection);
    return (reply->owner & ~setup->resource_id_mask) == setup->resource_id_base;
}

X11SelectionProbe::X11SelectionProbe() {
    int screenNumber = 0;
    m_connection = xcb_connect(nullptr, &screenNumber);
    if (xcb_connection_has_error(m_connection))
        return;
    xcb_screen_iterator_t screens = xcb_setup_roots_iterator(xcb_get_setup(m_connection));
    for (; screenNumber > 0 && screens.rem > 1; --screenNumber)
        xcb_screen_next(&screens);
    const xcb_window_t window = xcb_generate_id(m_connection);
    xcb_create_window(m_connection, XCB_COPY_FROM_PARENT, window, screens.data->root, -1, -1, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
    m_clipboard = atom(m_connection, "CLIPBOARD");
    xcb_convert_selection(m_connection, window, m_clipboard, atom(m_connection, "TARGETS"),
                          atom(m_connection, "TOLVO_TARGETS"), XCB_CURRENT_TIME);
    xcb_flush(m_connection);
}

X11SelectionProbe::~X11SelectionProbe() {
    xcb_disconnect(m_connection);
}

bool X11SelectionProbe::waitForAnswer(int milliseconds) {
    const QDeadlineTimer end(milliseconds);
    while (!m_answered && !xcb_connection_has_error(m_connection)) {
        while (const Reply<xcb_generic_event_t> event{xcb_poll_for_event(m_connection)}) {
            if ((event->response_type & 0x7F) == XCB_SELECTION_NOTIFY)
                m_answered = true;
        }
        if (m_answered || end.hasExpired())
            break;
        pollfd readable{xcb_get_file_descriptor(m_connection), POLLIN, 0};
        poll(&readable, 1, static_cast<int>(end.remainingTime()));
    }
    return m_answered || xcb_connection_has_error(m_connection);
}

} // namespace tolvo
