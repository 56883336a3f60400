// SPDX-License-Identifier: MIT
#include "platform/desktop/unix/x11_selection.h"

#include "platform/desktop/unix/xcb_reply.h"

#include <QGuiApplication>

#include <string_view>
#include <xcb/xcb.h>

namespace tolvo {

namespace {

xcb_atom_t atom(xcb_connection_t *connection, std::string_view name) {
    const auto asked = xcb_intern_atom(connection, 0, static_cast<uint16_t>(name.size()), name.data());
    const Reply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(connection, asked, nullptr));
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

xcb_window_t ownerOf(xcb_connection_t *connection, std::string_view selection) {
    const auto asked = xcb_get_selection_owner(connection, atom(connection, selection));
    const Reply<xcb_get_selection_owner_reply_t> reply(
        xcb_get_selection_owner_reply(connection, asked, nullptr));
    return reply ? reply->owner : xcb_window_t{XCB_WINDOW_NONE};
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
    const xcb_window_t owner = ownerOf(connection, "CLIPBOARD");
    if (owner == XCB_WINDOW_NONE)
        return false;
    // The window is this program's if its number is in the range that the server gave to the connection.
    const xcb_setup_t *setup = xcb_get_setup(connection);
    return (owner & ~setup->resource_id_mask) == setup->resource_id_base;
}

bool x11ClipboardHasOwner() {
    auto *native = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return native && ownerOf(native->connection(), "CLIPBOARD") != XCB_WINDOW_NONE;
}

} // namespace tolvo
