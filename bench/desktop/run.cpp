// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "run.h"

#include "display.h"
#include "process.h"
#include "program.h"

#include <optional>
#include <stdexcept>
#include <string>

using namespace std::chrono_literals;

namespace {

constexpr auto kLongestStart = 30s;
constexpr auto kSettledPause = 300ms;
/// A program may show its answer only after the key on its keypad has come up again, 100 ms later.
/// What is painted even later is no answer to a key: a fading tooltip, or a cursor that blinks.
constexpr auto kBurstPause = 150ms;
/// On a loaded machine the page may take longer than a pause to come.
constexpr auto kLongestClick = 5s;
/// The pause between two keys.
constexpr auto kTypingPause = 200ms;

constexpr char kDigits[] = "12345678";
constexpr xcb_keysym_t kHomeKey = 0xff50;

/// Where the rows of Dezimo's module list are in the window.
constexpr int kRows = 5;
constexpr int kRowX = 20;
constexpr int kFirstRowY = 48;
constexpr int kRowHeight = 36;

class Measurement final
{
public:
    Measurement(Display &display, const Program &program, const std::filesystem::path &home)
        : m_display(display),
          m_program(program),
          m_process(program.path, home)
    {}

    Run run();

private:
    struct Burst
    {
        Clock::time_point first;
        Clock::time_point last;
    };

    void waitForWindow();
    void waitForContent();
    void waitForPause();
    void prepareTyping();
    void typeDigits();
    void clickRows(int current);
    std::optional<Burst> burst(Clock::duration pause);
    Display::Event nextEvent(Display::Change change);
    double sinceStart(Clock::time_point time) const;

    Display &m_display;
    const Program &m_program;
    const Process m_process;
    xcb_window_t m_window = XCB_NONE;
    Run m_run;
};

Run Measurement::run()
{
    waitForWindow();
    waitForContent();
    waitForPause();
    m_run.processorTime = m_process.processorMilliseconds();
    m_run.privateMemory = m_process.privateMebibytes();
    prepareTyping();
    typeDigits();
    if (m_program.module)
        clickRows(*m_program.module);
    return m_run;
}

void Measurement::waitForWindow()
{
    while (m_window == XCB_NONE) {
        const Display::Event event = nextEvent(Display::Change::Mapped);
        m_run.mapped = sinceStart(event.time);
        if (m_display.isMainWindow(event.window))
            m_window = event.window;
    }
}

void Measurement::waitForContent()
{
    do
        m_run.painted = sinceStart(nextEvent(Display::Change::Painted).time);
    while (!m_display.hasContent(m_window));
    m_run.settled = m_run.painted;
}

void Measurement::waitForPause()
{
    if (const auto start = burst(kSettledPause))
        m_run.settled = sinceStart(start->last);
}

/// Dezimo's voltage calculator starts with a unit, and the digits belong before it.
void Measurement::prepareTyping()
{
    m_display.focus(m_window);
    if (m_program.module)
        m_display.typeKey(kHomeKey);
    burst(kTypingPause);
}

void Measurement::typeDigits()
{
    for (const char digit : std::string(kDigits)) {
        const Clock::time_point press = Clock::now();
        m_display.typeKey(xcb_keysym_t(digit));
        const auto answer = burst(kBurstPause);
        burst(kTypingPause);
        if (answer) {
            m_run.keyFirst.push_back(milliseconds(answer->first - press));
            m_run.keyLast.push_back(milliseconds(answer->last - press));
        }
    }
}

/// Clicks every row once, beginning with the one after the current module's, so that every page but
/// the last is shown for the first time.
void Measurement::clickRows(int current)
{
    for (int i = 1; i <= kRows; ++i) {
        const int row = (current + i) % kRows;
        const std::string title = m_display.title(m_window);
        m_display.movePointer(m_window, kRowX, kFirstRowY + row * kRowHeight);
        burst(kTypingPause);
        const Clock::time_point press = Clock::now();
        m_display.click();
        const auto isShown = [&] {
            return m_display.title(m_window) != title;
        };
        auto answer = burst(kBurstPause);
        while (!(answer && isShown()) && Clock::now() < press + kLongestClick)
            answer = burst(kBurstPause);
        if (!answer || !isShown())
            throw std::runtime_error("a click on row " + std::to_string(row) + " shows no page");
        m_run.clickLast.push_back(milliseconds(answer->last - press));
    }
}

/// The first and the last painting before nothing is painted for @p pause, if there is any.
std::optional<Measurement::Burst> Measurement::burst(Clock::duration pause)
{
    std::optional<Burst> burst;
    while (const auto event = m_display.nextEvent((burst ? burst->last : Clock::now()) + pause)) {
        if (event->change != Display::Change::Painted)
            continue;
        if (!burst)
            burst = Burst{event->time, event->time};
        burst->last = event->time;
    }
    return burst;
}

Display::Event Measurement::nextEvent(Display::Change change)
{
    for (;;) {
        const auto event = m_display.nextEvent(m_process.startTime() + kLongestStart);
        if (!event)
            throw std::runtime_error(m_program.name + " shows no window");
        if (event->change == change)
            return *event;
    }
}

double Measurement::sinceStart(Clock::time_point time) const
{
    return milliseconds(time - m_process.startTime());
}

/// The windows of a program disappear a little after it has ended, so this waits for it.
void forgetWindows(Display &display)
{
    while (display.nextEvent(Clock::now() + kTypingPause)) {
    }
}

} // namespace

Run measuredRun(Display &display, const Program &program, const std::filesystem::path &home)
{
    prepareSettings(program, home);
    Run run = Measurement(display, program, home).run();
    forgetWindows(display);
    return run;
}
