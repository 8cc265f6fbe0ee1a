// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef BENCH_DESKTOP_DISPLAY_H
#define BENCH_DESKTOP_DISPLAY_H

#include "clock.h"

#include <xcb/damage.h>
#include <xcb/xcb.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

/**
 * The X server as one client sees it: which windows are mapped, painted and gone, and when. It also
 * presses keys and moves the pointer as a person would. It watches every window for damage from its
 * creation on. It throws std::runtime_error if there is no such server.
 */
class Display final
{
public:
    enum class Change { Mapped, Painted, Gone };

    struct Event
    {
        Change change;
        xcb_window_t window;
        Clock::time_point time;
    };

    Display();

    /// The next change, or none if there was none until @p deadline.
    std::optional<Event> nextEvent(Clock::time_point deadline);
    /// Forgets what has happened so far.
    void discardEvents();

    /// Whether this is a program's main window, and neither a toolkit's helper window nor a popup.
    bool isMainWindow(xcb_window_t window) const;
    /// Whether the window shows more than one color; if it was only mapped, it shows its
    /// background.
    bool hasContent(xcb_window_t window) const;
    std::string title(xcb_window_t window) const;

    /// Gives the window the keyboard, and moves the pointer to where no control reacts to it.
    void focus(xcb_window_t window);
    /// Presses and releases the key with the symbol. The symbol of an ASCII character is its code.
    void typeKey(xcb_keysym_t symbol);
    void movePointer(xcb_window_t window, int x, int y);
    void click();

private:
    std::optional<Event> translated(const xcb_generic_event_t &event);
    void watch(xcb_window_t window);
    void fake(uint8_t type, uint8_t detail, xcb_window_t window, int x, int y);
    xcb_keycode_t keycode(xcb_keysym_t symbol) const;

    struct Disconnect
    {
        void operator()(xcb_connection_t *connection) const { xcb_disconnect(connection); }
    };
    const std::unique_ptr<xcb_connection_t, Disconnect> m_connection;
    xcb_screen_t *m_screen = nullptr;
    uint8_t m_firstDamageEvent = 0;
};

#endif
