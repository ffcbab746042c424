// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/desktop/RootProfile.h"

#include "photo/ScreenColors.h"

#include <QGuiApplication>
#include <cstdlib>
#include <memory>
#include <xcb/xcb.h>

namespace {

struct Free {
    void operator()(void* reply) const { std::free(reply); }
};

xcb_atom_t nameOf(xcb_connection_t* connection, const QByteArray& text)
{
    const auto asked = xcb_intern_atom(connection, false, std::uint16_t(text.size()), text.constData());
    const std::unique_ptr<xcb_intern_atom_reply_t, Free> reply(xcb_intern_atom_reply(connection, asked, nullptr));
    return reply ? reply->atom : xcb_atom_t(XCB_ATOM_NONE);
}

} // namespace

RootProfile::RootProfile()
{
    qApp->installNativeEventFilter(this);
}

RootProfile::~RootProfile()
{
    qApp->removeNativeEventFilter(this);
}

QByteArray RootProfile::of(int screen)
{
    const auto* x11 = qApp->nativeInterface<QNativeInterface::QX11Application>();
    xcb_connection_t* connection = x11 ? x11->connection() : nullptr;
    if (!connection)
        return {};
    m_root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
    m_property = nameOf(connection, screen > 0 ? "_ICC_PROFILE_" + QByteArray::number(screen) : "_ICC_PROFILE");
    const auto asked = xcb_get_property(
        connection, false, m_root, m_property, XCB_GET_PROPERTY_TYPE_ANY, 0, ScreenColors::largestProfile / 4);
    const std::unique_ptr<xcb_get_property_reply_t, Free> reply(xcb_get_property_reply(connection, asked, nullptr));
    if (!reply || reply->format != 8 || reply->bytes_after > 0)
        return {};
    return {static_cast<const char*>(xcb_get_property_value(reply.get())), xcb_get_property_value_length(reply.get())};
}

bool RootProfile::nativeEventFilter(const QByteArray& kind, void* message, qintptr*)
{
    if (kind != "xcb_generic_event_t" || m_property == XCB_ATOM_NONE)
        return false;
    const auto* event = static_cast<const xcb_property_notify_event_t*>(message);
    if ((event->response_type & 0x7f) == XCB_PROPERTY_NOTIFY && event->window == m_root && event->atom == m_property)
        emit changed();
    return false;
}
