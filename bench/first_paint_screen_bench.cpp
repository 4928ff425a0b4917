// How soon a person sees the tender screen: the time from the start of TndrCC to the first pixel
// of its window on an X display, in turns with a bare Qt window. It looks at the display alone, at
// both programs in the same way.
#include "bench/headless.h"
#include "bench/measure.h"
#include "simulator/pos.h"
#include "simulator/sandbox.h"

#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <functional>
#include <optional>
#include <thread>

namespace {

using namespace bench;

/// The display, of which nothing but the root's colour may be seen at first.
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

    /// True when a pixel in the rows looked at has another colour than the empty display.
    bool seesSomething() const
    {
        constexpr int kRows = 7;
        const int screen = DefaultScreen(display);
        const auto width = static_cast<unsigned>(DisplayWidth(display, screen));
        for (int row = 1; row <= kRows; ++row) {
            const int y = DisplayHeight(display, screen) * row / (kRows + 1);
            XImage *pixels =
                XGetImage(display, DefaultRootWindow(display), 0, y, width, 1, AllPlanes, ZPixmap);
            if (pixels == nullptr)
                return false;
            bool other = false;
            for (int x = 0; x < static_cast<int>(width) && !other; ++x)
                other = XGetPixel(pixels, x, 0) != BlackPixel(display, screen);
            XDestroyImage(pixels);
            if (other)
                return true;
        }
        return false;
    }

    /// Waits, at most ten seconds, until the display shows something or nothing.
    bool waitUntil(bool something) const
    {
        const Instant start = now();
        while (seesSomething() != something) {
            if (millisecondsSince(start) > 10'000)
                return false;
            std::this_thread::sleep_for(std::chrono::microseconds(200));
        }
        return true;
    }

private:
    Display *display;
};

/// Milliseconds from the start of a program to its first pixel; the program is ended then.
std::optional<double> timeToPixel(const Eye &eye,
                                  const std::function<simulator::ChildProcess()> &startProgram)
{
    if (!eye.waitUntil(false))
        return std::nullopt;
    const Instant start = now();
    simulator::ChildProcess program = startProgram();
    const bool seen = eye.waitUntil(true);
    const double passed = millisecondsSince(start);
    program.kill();
    return seen ? std::optional(passed) : std::nullopt;
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
    Series tender, bare;
    const int rounds = countFromEnvironment("LUMBRIO_BENCH_PAINTS", 40);
    for (int round = 0; round < rounds; ++round) {
        simulator::leaveRequest(place, {"12", "1043", "7", "48.50", {}});
        const std::optional<double> one = timeToPixel(eye, startBare);
        const std::optional<double> other = timeToPixel(eye, startTender);
        if (!one || !other) {
            report.fail("a window was not seen");
            return report.result();
        }
        bare.add(*one);
        tender.add(*other);
    }
    report.line("bare window, start to first pixel", bare, "ms");
    report.line("TndrCC, start to first pixel", tender, "ms");
    report.atMost("TndrCC / bare window", ratios(tender, bare).median(), 1.5, "median ratio");
    return report.result();
}
