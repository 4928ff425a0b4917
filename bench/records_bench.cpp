// Card records on the disk against SQLite, side by side in one process: one record appended and
// flushed, and a file of 100,000 read. Separate processes show how much memory a reader needs.
#include "bench/headless.h"
#include "bench/measure.h"
#include "bench/sqlite_rows.h"
#include "records/card_files.h"
#include "simulator/process.h"
#include "simulator/records_generator.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <deque>
#include <filesystem>
#include <fstream>
#include <functional>
#include <random>
#include <string_view>
#include <system_error>
#include <utility>

namespace {

using namespace bench;
using records::CardRecord;
using records::kCardSlotLength;

constexpr std::size_t kManyRecords = 100'000;
constexpr std::size_t kFewRecords = 1'000;
const std::string kAppendFile = "F:\\Lumbrio\\CCPending.dat";
const std::string kManyFile = "F:\\Lumbrio\\Many.dat";
const std::string kFewFile = "F:\\Lumbrio\\Few.dat";

using Take = std::function<void(const CardRecord &)>;

/// One way to do a thing, and how long it took each time.
struct Contestant {
    std::string name;
    std::function<void(std::size_t round)> act;
    Series time;
};

/// In each round every way is tried once, in a new order, so that none always follows the same
/// other one.
void run(std::deque<Contestant> &contestants, std::size_t rounds, double unitsPerMillisecond,
         const std::function<void()> &afterRound = {})
{
    std::vector<Contestant *> order;
    for (Contestant &contestant : contestants)
        order.push_back(&contestant);
    std::minstd_rand random;
    for (std::size_t round = 0; round < rounds; ++round) {
        std::shuffle(order.begin(), order.end(), random);
        for (Contestant *contestant : order) {
            const Instant start = now();
            contestant->act(round);
            contestant->time.add(millisecondsSince(start) * unitsPerMillisecond);
        }
        if (afterRound)
            afterRound();
    }
}

/// The fastest by the median of those whose name begins so.
const Contestant &best(const std::deque<Contestant> &contestants, std::string_view beginning)
{
    const Contestant *found = nullptr;
    for (const Contestant &each : contestants) {
        if (each.name.starts_with(beginning) &&
            (found == nullptr || each.time.median() < found->time.median()))
            found = &each;
    }
    return *found;
}

/// SQLite in all of its durable modes: with a connection that stays open, and with one for each
/// row, as in a program that takes one tender and ends.
class Databases {
public:
    Databases(const std::string &theFolder, const std::vector<CardRecord> &theRecords)
        : folder(theFolder), records(theRecords)
    {
    }

    std::deque<Contestant> contestants()
    {
        std::deque<Contestant> all;
        for (const std::string mode : {"WAL", "PERSIST", "TRUNCATE", "DELETE"}) {
            SqliteRows &rows = open.emplace_back(folder + "/" + mode + ".db", mode);
            all.push_back({"SQLite, kept open, " + mode,
                           [&rows, this](std::size_t n) { rows.insert(records[n]); },
                           {}});
            all.push_back({"SQLite, opened for it, " + mode,
                           [path = folder + "/" + mode + "-once.db", mode, this](std::size_t n) {
                               SqliteRows once(path, mode);
                               once.insert(records[n]);
                               opened = opened && once.works();
                           },
                           {}});
        }
        return all;
    }
    bool work()
    {
        return opened &&
               std::all_of(open.begin(), open.end(), [](SqliteRows &rows) { return rows.works(); });
    }

private:
    std::string folder;
    const std::vector<CardRecord> &records;
    std::deque<SqliteRows> open;
    bool opened = true;
};

/// The log of SQLite's WAL mode grows to a thousand pages; then it is written over from its
/// beginning, so that the file does not grow. Reports after each insertion.
class Log {
public:
    explicit Log(const std::string &thePath) : path(thePath) {}
    bool hasGrown()
    {
        std::error_code error;
        const std::uintmax_t before = std::exchange(size, std::filesystem::file_size(path, error));
        return size != before;
    }

private:
    std::string path;
    std::uintmax_t size = 0;
};

/// Most of an append's time is the flush. The ways differ in how many flushes they need, what these
/// must make durable, and the work around them. addRecord is compared with the best modes of
/// SQLite.
void benchAppends(Headless &station, const std::string &folder, Report &report)
{
    const auto rounds =
        static_cast<std::size_t>(countFromEnvironment("LUMBRIO_BENCH_APPENDS", 2000));
    const std::size_t trials = rounds / 20 + 1;
    const simulator::Evening evening(rounds);
    std::vector<CardRecord> records;
    for (std::size_t n = 0; n < rounds; ++n)
        records.push_back(evening.record(n));

    Databases databases(folder, records);
    std::deque<Contestant> modes = databases.contestants();
    run(modes, trials, 1000);
    for (const Contestant &mode : modes)
        report.line(mode.name, mode.time, "us");
    const Contestant &open = best(modes, "SQLite, kept open");
    const Contestant &once = best(modes, "SQLite, opened");

    std::size_t stored = 0;
    Log log(folder + "/WAL.db-wal");
    std::vector<bool> grown;
    const auto add = [&](std::size_t n) {
        stored += records::addRecord(station.app, kAppendFile, records[n]).stored() ? 1U : 0U;
    };
    std::deque<Contestant> tenders = {{"addRecord", add, {}}, {once.name, once.act, {}}};
    run(tenders, rounds / 4, 1000);
    report.line(once.name, tenders[1].time, "us");
    report.atMost("addRecord / " + once.name, ratios(tenders[0].time, tenders[1].time).median(),
                  1.0, "median ratio");

    std::deque<Contestant> duel = {{"addRecord", add, {}}, {open.name, open.act, {}}};
    run(duel, rounds, 1000, [&] { grown.push_back(log.hasGrown()); });
    for (const Contestant &each : duel)
        report.line(each.name, each.time, "us");
    const Series both = ratios(duel[0].time, duel[1].time);
    Series growing, reused;
    for (std::size_t n = 0; n < rounds; ++n)
        (grown[n] ? growing : reused).add(both[n]);
    report.line("addRecord / " + open.name + ", log growing", growing, "ratio");
    report.line("addRecord / " + open.name + ", log reused", reused, "ratio");
    report.atMost("addRecord / " + open.name, both.median(), 1.0, "median ratio");
    const std::size_t expected = rounds / 4 + rounds;
    if (stored != expected ||
        records::countRecords(station.app, kAppendFile) != static_cast<long>(expected))
        report.fail("not every record was stored");
    if (!databases.work())
        report.fail("not every row was stored");
}

/// Reads the file as a list does: without the lock slot by slot, with it many slots ahead.
void readSlots(records::App &app, const std::string &path, bool locked, const Take &take)
{
    platform::SlotFile slots(app.files, path, kCardSlotLength);
    slots.open(platform::SlotUse::Read);
    if (locked)
        slots.lock();
    const long count = slots.count();
    CardRecord record;
    for (long slot = 1; slot <= count; ++slot) {
        slots.read(slot, record.data());
        take(record);
    }
}

/// True if `read` gives exactly the records of the evening.
bool givesAll(const simulator::Evening &evening, const std::function<void(const Take &)> &read)
{
    std::size_t n = 0;
    bool same = true;
    read([&](const CardRecord &record) { same = same && record == evening.record(n++); });
    return same && n == evening.size();
}

void benchReads(Headless &station, const std::string &folder, Report &report)
{
    const auto rounds = static_cast<std::size_t>(countFromEnvironment("LUMBRIO_BENCH_READS", 15));
    const simulator::Evening evening(kManyRecords);
    simulator::writeCardFile(station.files, kManyFile, evening);
    const std::string database = folder + "/many.db";
    SqliteRows rows(database, "DELETE");
    rows.execute("BEGIN");
    for (std::size_t n = 0; n < evening.size(); ++n)
        rows.insert(evening.record(n));
    rows.execute("COMMIT");
    SqliteRows mapped(database, "DELETE", true);

    std::size_t sum = 0;
    const Take look = [&sum](const CardRecord &record) {
        sum += static_cast<unsigned char>(record.view().front());
    };
    using Read = std::function<void(const Take &)>;
    const std::vector<std::pair<std::string, Read>> ways = {
        {"SlotFile, locked",
         [&](const Take &take) { readSlots(station.app, kManyFile, true, take); }},
        {"SlotFile, not locked",
         [&](const Take &take) { readSlots(station.app, kManyFile, false, take); }},
        {"SQLite", [&](const Take &take) { rows.readAll(take); }},
        {"SQLite, mapped", [&](const Take &take) { mapped.readAll(take); }},
    };
    std::deque<Contestant> contestants;
    for (const auto &[name, read] : ways) {
        if (!givesAll(evening, read))
            report.fail(name + " does not give the records that were written");
        contestants.push_back({name, [&look, read = read](std::size_t) { read(look); }, {}});
    }
    run(contestants, rounds, 1);

    for (const Contestant &each : contestants)
        report.line(each.name, each.time, "ms");
    const Contestant &sqlite = best(contestants, "SQLite");
    for (const Contestant &each : contestants) {
        if (each.name.starts_with("SlotFile"))
            report.atLeast(sqlite.name + " / " + each.name, ratios(sqlite.time, each.time).median(),
                           5.0, "median ratio");
    }
    if (sum == 0 || !rows.works() || !mapped.works())
        report.fail("the records read were empty");
}

/// The most memory that this process had in use, in kB.
long peakMemory()
{
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        if (line.starts_with("VmHWM:"))
            return std::atol(line.c_str() + 6);
    }
    return 0;
}

/// A second process: reads every record of the file and writes its peak memory into `into`.
int measureReader(const std::string &folder, const std::string &path, const std::string &into)
{
    Headless station(folder);
    long records = 0;
    for (const bool locked : {true, false})
        readSlots(station.app, path, locked, [&](const CardRecord &) { ++records; });
    std::ofstream(into) << peakMemory() << ' ' << records << '\n';
    return 0;
}

void benchMemory(const std::string &folder, Report &report)
{
    const std::string program = simulator::ownFolder() + "/records_bench";
    const std::string into = folder + "/memory";
    Series few;
    Series many;
    for (int round = 0; round < 5; ++round) {
        for (const std::string &path : {kFewFile, kManyFile}) {
            simulator::ChildProcess reader(program, {"--reader", folder, path, into}, {});
            reader.waitForEnd(0);
            std::ifstream answer(into);
            long kilobytes = 0;
            std::size_t records = 0;
            answer >> kilobytes >> records;
            if (records != 2 * (path == kFewFile ? kFewRecords : kManyRecords))
                report.fail("the reading process did not read every record");
            (path == kFewFile ? few : many).add(static_cast<double>(kilobytes) / 1024);
        }
    }
    report.line("peak memory, 1,000 records", few, "MB");
    report.line("peak memory, 100,000 records", many, "MB");
    report.atMost("difference", many.median() - few.median(), 0.5, "MB");
}

} // namespace

int main(int argc, char **argv)
{
    if (argc == 5 && std::string_view(argv[1]) == "--reader")
        return measureReader(argv[2], argv[3], argv[4]);
    const WorkFolder work;
    if (!work.isOnDisk()) {
        std::fprintf(stderr, "%s is kept in memory; set LUMBRIO_BENCH_FOLDER to a real disk\n",
                     work.path().c_str());
        return 2;
    }
    Headless station(work.path());
    for (const char *folder : {"F:\\", "F:\\Lumbrio\\"})
        station.files.makeFolder(folder);
    simulator::writeCardFile(station.files, kFewFile, simulator::Evening(kFewRecords));

    Report report("Card records on the disk");
    benchAppends(station, work.path(), report);
    benchReads(station, work.path(), report);
    benchMemory(work.path(), report);
    return report.result();
}
