#include "simulator/payment_server.h"

#include "records/text.h"

#include <algorithm>
#include <utility>

namespace simulator {

namespace {

constexpr std::uint64_t kRestAfter = 400;         // ms
constexpr std::size_t kRequestLimit = 64U << 10U; // bytes

} // namespace

PaymentServer::PaymentServer(platform::Files &theFiles, platform::Run &theRun,
                             std::string theFolder,
                             std::function<void(const std::string &)> theReport)
    : files(theFiles), run(theRun), folder(std::move(theFolder)),
      realFolder(files.realPath(folder)), report(std::move(theReport))
{
}

void PaymentServer::turn(std::uint64_t now)
{
    const platform::ErrorsIgnored ignored(run);
    if (folderChanged())
        lookForRequests(now);
    for (std::size_t i = 0; i < steps.size();) {
        if (steps[i].at > now) {
            ++i;
            continue;
        }
        const Step step = std::move(steps[i]);
        steps.erase(steps.begin() + static_cast<std::ptrdiff_t>(i));
        carryOut(step);
    }
}

bool PaymentServer::folderChanged()
{
    const std::uint64_t stamp = files.rawDisk().changeStamp(realFolder);
    return stamp == 0 || std::exchange(seenStamp, stamp) != stamp;
}

void PaymentServer::lookForRequests(std::uint64_t now)
{
    for (const std::string &name : files.list(folder))
        if (records::toLower(name).ends_with(".req"))
            take(name, now);
}

void PaymentServer::take(const std::string &name, std::uint64_t now)
{
    std::string content;
    if (!done(files.read(folder + name, content, kRequestLimit)) || !isWholeRequest(content))
        return;
    if (!done(files.remove(folder + name))) // its tender was cancelled just now
        return;
    const std::string answer = folder + name.substr(0, name.size() - 3) + "ans";
    const std::optional<ServerRequest> request = parseServerRequest(content);
    const PaymentOutcome outcome = request ? decide(*request) : refuse();
    plan(outcome, answer,
         request ? readableStep(*request, outcome.name) : std::string(outcome.name), now);
}

void PaymentServer::plan(const PaymentOutcome &outcome, const std::string &path,
                         const std::string &text, std::uint64_t now)
{
    const std::uint64_t at = now + static_cast<std::uint64_t>(outcome.waitSeconds) * 1000;
    const std::string first = outcome.content.substr(0, outcome.firstPart);
    switch (outcome.delivery) {
    case Delivery::Whole: steps.push_back({at, Form::Whole, path, outcome.content, text}); break;
    case Delivery::None: steps.push_back({at, Form::None, path, {}, text}); break;
    case Delivery::FirstPart: steps.push_back({at, Form::InPlace, path, first, text}); break;
    case Delivery::FirstPartThenAll:
        steps.push_back({at, Form::InPlace, path, first, {}});
        steps.push_back(
            {at + kRestAfter, Form::Rest, path, outcome.content.substr(outcome.firstPart), text});
        break;
    }
}

void PaymentServer::carryOut(const Step &step)
{
    platform::Outcome outcome = platform::Outcome::Done;
    switch (step.form) {
    case Form::Whole: outcome = files.replaceWhole(step.path, step.bytes); break;
    case Form::InPlace: outcome = files.write(step.path, step.bytes); break;
    case Form::Rest:
        if (files.exists(step.path)) // else the tender has read it and done away with it
            outcome = files.append(step.path, step.bytes);
        break;
    case Form::None: break;
    }
    if (!done(outcome))
        report(step.report + "; the answer cannot be written: " + platform::textOf(outcome));
    else if (!step.report.empty())
        report(step.report);
}

} // namespace simulator
