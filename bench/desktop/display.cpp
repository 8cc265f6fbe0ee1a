// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "display.h"

#include <poll.h>
#include <xcb/xtest.h>

#include <algorithm>
#include <cstdlib>
#include <stdexcept>

namespace {

/// The toolkits' helper windows are smaller than this, in pixels.
constexpr int kMainWindowSize = 100;

/// The last pixel of the window, where no control is.
constexpr int kRestingInset = 1;

/// A reply of the server, which whoever reads it must free.
template <typename T>
using Reply = std::unique_ptr<T, decltype(&std::free)>;

template <typename T>
Reply<T> reply(T *received)
{
    return Reply<T>(received, &std::free);
}

template <typename T>
const T &as(const xcb_generic_event_t &event)
{
    return reinterpret_cast<const T &>(event);
}

} // namespace

Display::Display() : m_connection(xcb_connect(nullptr, nullptr))
{
    xcb_connection_t *connection = m_connection.get();
    if (xcb_connection_has_error(connection))
        throw std::runtime_error("no X server at $DISPLAY");
    m_screen = xcb_setup_roots_iterator(xcb_get_setup(connection)).data;

    const xcb_query_extension_reply_t *damage = xcb_get_extension_data(connection, &xcb_damage_id);
    const xcb_query_extension_reply_t *test = xcb_get_extension_data(connection, &xcb_test_id);
    if (!damage || !damage->present || !test || !test->present)
        throw std::runtime_error("the X server lacks the extension DAMAGE or XTEST");
    m_firstDamageEvent = damage->first_event;
    reply(xcb_damage_query_version_reply(
        connection, xcb_damage_query_version(connection, XCB_DAMAGE_MAJOR_VERSION, 1), nullptr));

    const uint32_t events = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
    xcb_change_window_attributes(connection, m_screen->root, XCB_CW_EVENT_MASK, &events);
    xcb_flush(connection);
}

std::optional<Display::Event> Display::nextEvent(Clock::time_point deadline)
{
    for (;;) {
        while (const auto event = reply(xcb_poll_for_event(m_connection.get()))) {
            if (auto change = translated(*event))
                return change;
        }
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(deadline - Clock::now());
        if (left.count() <= 0)
            return std::nullopt;
        pollfd server{xcb_get_file_descriptor(m_connection.get()), POLLIN, 0};
        poll(&server, 1, int(left.count()));
        if (xcb_connection_has_error(m_connection.get()))
            throw std::runtime_error("the X server has gone");
    }
}

void Display::discardEvents()
{
    while (nextEvent(Clock::now())) {
    }
}

bool Display::isMainWindow(xcb_window_t window) const
{
    xcb_connection_t *connection = m_connection.get();
    const auto attributes = reply(xcb_get_window_attributes_reply(
        connection, xcb_get_window_attributes(connection, window), nullptr));
    const auto geometry =
        reply(xcb_get_geometry_reply(connection, xcb_get_geometry(connection, window), nullptr));
    return attributes && geometry && !attributes->override_redirect &&
           geometry->width >= kMainWindowSize && geometry->height >= kMainWindowSize;
}

bool Display::hasContent(xcb_window_t window) const
{
    xcb_connection_t *connection = m_connection.get();
    const auto geometry =
        reply(xcb_get_geometry_reply(connection, xcb_get_geometry(connection, window), nullptr));
    if (!geometry)
        return false;
    const auto image =
        reply(xcb_get_image_reply(connection,
                                  xcb_get_image(connection, XCB_IMAGE_FORMAT_Z_PIXMAP, window, 0, 0,
                                                geometry->width, geometry->height, ~0U),
                                  nullptr));
    if (!image)
        return false;
    const auto *pixels = reinterpret_cast<const uint32_t *>(xcb_get_image_data(image.get()));
    const size_t count = size_t(xcb_get_image_data_length(image.get())) / sizeof *pixels;
    return std::any_of(pixels, pixels + count, [pixels](uint32_t p) { return p != *pixels; });
}

std::string Display::title(xcb_window_t window) const
{
    constexpr uint32_t kWords = 64;
    xcb_connection_t *connection = m_connection.get();
    const auto text =
        reply(xcb_get_property_reply(connection,
                                     xcb_get_property(connection, 0, window, XCB_ATOM_WM_NAME,
                                                      XCB_GET_PROPERTY_TYPE_ANY, 0, kWords),
                                     nullptr));
    if (!text)
        return {};
    return {static_cast<const char *>(xcb_get_property_value(text.get())),
            size_t(xcb_get_property_value_length(text.get()))};
}

void Display::focus(xcb_window_t window)
{
    const auto geometry = reply(xcb_get_geometry_reply(
        m_connection.get(), xcb_get_geometry(m_connection.get(), window), nullptr));
    if (geometry)
        movePointer(window, geometry->width - kRestingInset, geometry->height - kRestingInset);
    xcb_set_input_focus(m_connection.get(), XCB_INPUT_FOCUS_PARENT, window, XCB_CURRENT_TIME);
    xcb_flush(m_connection.get());
}

void Display::typeKey(xcb_keysym_t symbol)
{
    const xcb_keycode_t key = keycode(symbol);
    fake(XCB_KEY_PRESS, key, XCB_NONE, 0, 0);
    fake(XCB_KEY_RELEASE, key, XCB_NONE, 0, 0);
    xcb_flush(m_connection.get());
}

void Display::movePointer(xcb_window_t window, int x, int y)
{
    xcb_connection_t *connection = m_connection.get();
    const auto place = reply(xcb_translate_coordinates_reply(
        connection,
        xcb_translate_coordinates(connection, window, m_screen->root, int16_t(x), int16_t(y)),
        nullptr));
    if (place)
        fake(XCB_MOTION_NOTIFY, 0, m_screen->root, place->dst_x, place->dst_y);
    xcb_flush(connection);
}

void Display::click()
{
    fake(XCB_BUTTON_PRESS, XCB_BUTTON_INDEX_1, XCB_NONE, 0, 0);
    fake(XCB_BUTTON_RELEASE, XCB_BUTTON_INDEX_1, XCB_NONE, 0, 0);
    xcb_flush(m_connection.get());
}

std::optional<Display::Event> Display::translated(const xcb_generic_event_t &event)
{
    const Clock::time_point now = Clock::now();
    const uint8_t type = event.response_type & 0x7f; // the top bit tells who sent it
    if (type == m_firstDamageEvent + XCB_DAMAGE_NOTIFY)
        return Event{Change::Painted, as<xcb_damage_notify_event_t>(event).drawable, now};
    switch (type) {
    case XCB_CREATE_NOTIFY:
        watch(as<xcb_create_notify_event_t>(event).window);
        return std::nullopt;
    case XCB_MAP_NOTIFY:
        return Event{Change::Mapped, as<xcb_map_notify_event_t>(event).window, now};
    case XCB_DESTROY_NOTIFY:
        return Event{Change::Gone, as<xcb_destroy_notify_event_t>(event).window, now};
    default:
        return std::nullopt;
    }
}

/// If the window has gone meanwhile, the server sends an error event, which nobody reads.
void Display::watch(xcb_window_t window)
{
    xcb_connection_t *connection = m_connection.get();
    xcb_damage_create(connection, xcb_generate_id(connection), window,
                      XCB_DAMAGE_REPORT_LEVEL_RAW_RECTANGLES);
    xcb_flush(connection);
}

void Display::fake(uint8_t type, uint8_t detail, xcb_window_t window, int x, int y)
{
    constexpr uint8_t kNoDevice = 0;
    xcb_test_fake_input(m_connection.get(), type, detail, XCB_CURRENT_TIME, window, int16_t(x),
                        int16_t(y), kNoDevice);
}

xcb_keycode_t Display::keycode(xcb_keysym_t symbol) const
{
    xcb_connection_t *connection = m_connection.get();
    const xcb_setup_t *setup = xcb_get_setup(connection);
    const auto mapping = reply(xcb_get_keyboard_mapping_reply(
        connection,
        xcb_get_keyboard_mapping(connection, setup->min_keycode,
                                 uint8_t(setup->max_keycode - setup->min_keycode + 1)),
        nullptr));
    if (!mapping)
        throw std::runtime_error("the X server has no keyboard");
    const xcb_keysym_t *symbols = xcb_get_keyboard_mapping_keysyms(mapping.get());
    const int count = xcb_get_keyboard_mapping_keysyms_length(mapping.get());
    const xcb_keysym_t *found = std::find(symbols, symbols + count, symbol);
    if (found == symbols + count)
        throw std::runtime_error("no key has the symbol " + std::to_string(symbol));
    return xcb_keycode_t(setup->min_keycode + (found - symbols) / mapping->keysyms_per_keycode);
}
