// How soon a person sees the tender screen: the time from the start of TndrCC to the first pixel
// of its window on an X display, in turns with a bare Qt window. It looks only at the display, and
// at both programs in the same way.
#include "bench/headless.h"
#include "bench/measure.h"
#include "simulator/pos.h"
#include "simulator/sandbox.h"

#include <X11/Xlib.h>
#include <X11/Xutil.h>

#include <functional>
#include <set>
#include <thread>

namespace {

using namespace bench;

/// The display. At first it must show only the colour of the root window.
class Eye {
public:
    Eye() : display(XOpenDisplay(nullptr)) {}
    ~Eye()
    {
        if (display != nullptr)
            XCloseDisplay(display);
    }
    Eye(const Eye &) = delete;
    Eye &operator=(const Eye &) = delete;
    bool isOpen() const { return display != nullptr; }

    /// Waits, at most ten seconds, until the display shows nothing, or something.
    bool waitForNothing() const
    {
        return waitUntil([this] { return !showsMoreThan(1); });
    }
    bool waitForPixel() const
    {
        return waitUntil([this] { return showsMoreThan(1); });
    }
    /// Text has many shades, an area without text has few.
    bool waitForWords() const
    {
        return waitUntil([this] { return showsMoreThan(24); });
    }

private:
    /// The colours in some rows of the display, including that of the empty display.
    bool showsMoreThan(std::size_t colours) const
    {
        constexpr int kRows = 15;
        const int screen = DefaultScreen(display);
        const int width = DisplayWidth(display, screen);
        std::set<unsigned long> seen = {BlackPixel(display, screen)};
        for (int row = 1; row <= kRows && seen.size() <= colours; ++row) {
            const int y = DisplayHeight(display, screen) * row / (kRows + 1);
            XImage *pixels = XGetImage(display, DefaultRootWindow(display), 0, y,
                                       static_cast<unsigned>(width), 1, AllPlanes, ZPixmap);
            for (int x = 0; pixels != nullptr && x < width; ++x)
                seen.insert(XGetPixel(pixels, x, 0));
            if (pixels != nullptr)
                XDestroyImage(pixels);
        }
        return seen.size() > colours;
    }

    static bool waitUntil(const std::function<bool()> &seen)
    {
        const Instant start = now();
        while (!seen()) {
            if (millisecondsSince(start) > 10'000)
                return false;
            std::this_thread::sleep_for(std::chrono::microseconds(200));
        }
        return true;
    }

    Display *display;
};

/// Starts a program and waits for its window; ends it then. False when nothing was seen.
bool look(const Eye &eye, const std::function<simulator::ChildProcess()> &startProgram,
          Series &toPixel, Series *toWords)
{
    if (!eye.waitForNothing())
        return false;
    const Instant start = now();
    simulator::ChildProcess program = startProgram();
    bool seen = eye.waitForPixel();
    toPixel.add(millisecondsSince(start));
    if (seen && toWords != nullptr) {
        seen = eye.waitForWords();
        toWords->add(millisecondsSince(start));
    }
    program.kill();
    return seen;
}

} // namespace

int main()
{
    const Eye eye;
    const WorkFolder work;
    Headless station(work.path());
    Report report("The first paint of the tender screen");
    const std::string programs = simulator::ownFolder();
    if (!eye.isOpen() ||
        !simulator::makeSandbox(station.files, work.path(), programs + "/sim_xcharge")) {
        report.fail("no display or no sandbox");
        return report.result();
    }
    const simulator::Place place = simulator::placeOf(station.files);
    const std::vector<std::string> environment = {"LUMBRIO_DRIVES=" + work.path(),
                                                  "QT_QPA_PLATFORM=xcb"};
    const auto startTender = [&] {
        return simulator::ChildProcess(programs + "/TndrCC", {}, environment, false);
    };
    const auto startBare = [&] {
        return simulator::ChildProcess(programs + "/bare_window", {"--stay"}, environment, false);
    };
    Series tender, words, bare;
    const int rounds = countFromEnvironment("LUMBRIO_BENCH_PAINTS", 40);
    for (int round = 0; round < rounds; ++round) {
        simulator::leaveRequest(place, {"12", "1043", "7", "48.50", {}});
        if (!look(eye, startBare, bare, nullptr) || !look(eye, startTender, tender, &words)) {
            report.fail("a window was not seen");
            return report.result();
        }
    }
    report.line("bare window, start to first pixel", bare, "ms");
    report.line("TndrCC, start to first pixel", tender, "ms");
    report.line("TndrCC, start to its words", words, "ms");
    report.atMost("TndrCC / bare window", ratios(tender, bare).median(), 1.5, "median ratio");
    return report.result();
}
