// Questions: what is asked of the disk whenever a program has ended, whatever happened to it.
#pragma once

#include "faults/scenes.h"

#include <set>

namespace faults {

/// What lies on all drives: contents by their paths in small letters.
struct Drives : std::map<std::string, std::string> {
    explicit Drives(const TestStation &station)
    {
        namespace fs = std::filesystem;
        const fs::path root = station.drives.root();
        for (const fs::directory_entry &entry : fs::recursive_directory_iterator(root)) {
            const std::string name =
                records::toLower(entry.path().lexically_relative(root).generic_string());
            if (!names.insert(name).second)
                twins += name + " ";
            if (entry.is_regular_file())
                emplace(name, support::contentOf(entry.path().string()));
        }
    }
    std::string at(const std::string &path) const
    {
        const auto found = find(path);
        return found == end() ? "" : found->second;
    }
    /// Whether a file whose path has this in it holds all of these words.
    bool hold(const std::string &name, const std::vector<std::string> &words = {}) const
    {
        return std::any_of(begin(), end(), [&](const auto &file) {
            return file.first.find(name) != std::string::npos &&
                   std::all_of(words.begin(), words.end(), [&](const std::string &word) {
                       return file.second.find(word) != std::string::npos;
                   });
        });
    }

    std::string twins; // that differ in the case of their names alone

private:
    std::set<std::string> names;
};

constexpr const char *kCardFiles[] = {"f/lumbrio/ccpending.dat", "f/lumbrio/data/ccfinal0125.dat",
                                      "f/lumbrio/data/0125ccdeleted.dat"};

using Slots = std::vector<std::string>;

/// As they count, without those of the guests of these tenders.
inline Slots slotsOf(const std::string &bytes)
{
    Slots slots;
    for (std::size_t at = 0; at + 250 <= bytes.size(); at += 500) {
        slots.push_back(bytes.substr(at, 500));
        slots.back().resize(500, '\0');
        if (slots.back().compare(310, 3, "104") == 0)
            slots.pop_back();
    }
    return slots;
}

struct Undisturbed {
    Drives before; // the program
    Drives after;
};

struct Happened {
    std::string where;
    bool stopped = false; // killed, or the power was cut
    bool torn = false;
    bool lasting = false; // the failure
    bool again = false;   // the next start is over, and all is well
};

class Questions {
public:
    Questions(Scene &theScene, const Drives &theDrives, const Undisturbed &theUndisturbed,
              Happened theHappened)
        : scene(theScene), drives(theDrives), undisturbed(theUndisturbed),
          happened(std::move(theHappened))
    {
    }

    /// What is wrong, in words; nothing where all is well.
    std::string recordsLost() const
    {
        std::string lost;
        for (const char *file : kCardFiles) {
            const Slots now = slotsOf(drives.at(file));
            if (!isBetween(file, now))
                lost += std::string("changed ") + file + "; ";
        }
        const Slots all = everySlot(drives);
        Slots known = everySlot(undisturbed.after);
        for (const std::string &slot : everySlot(undisturbed.before)) {
            known.push_back(slot);
            const std::string receipt = slot.substr(310, 20);
            const bool stands = std::any_of(all.begin(), all.end(), [&](const std::string &one) {
                return one.substr(310, 20) == receipt && isKnown(one, known);
            });
            if (!stands)
                lost += "no record of " + receipt + "; ";
        }
        return lost;
    }
    std::string unrecorded() const
    {
        if (!scene.charged() || inCardFiles() > 0 || kept() || unknown() || evidence())
            return {};
        return "charged, and nothing tells of it; ";
    }
    std::string otherwiseWrong() const
    {
        std::string wrong = scene.amiss() + answerWrong() + left();
        if (inCardFiles() > 1)
            wrong += "two records of one charge; ";
        if (!drives.twins.empty())
            wrong += "two names for one file: " + drives.twins + "; ";
        if (happened.again && kept())
            wrong += "a kept record waits on; ";
        return wrong;
    }

    std::size_t inCardFiles() const
    {
        std::size_t count = 0;
        for (const char *file : kCardFiles)
            for (const records::CardRecord &record : support::recordsIn(drives.at(file)))
                count += record.text(records::CCReceipt) == scene.receipt &&
                         record.text(records::CApprovalCode) == scene.code &&
                         record.text(records::CCstatus) == "Approved";
        return scene.receipt.empty() ? 0 : count;
    }

private:
    bool kept() const { return drives.hold("/keptrecord-", {scene.receipt, scene.code}); }
    bool unknown() const { return drives.hold("/unknown-", {scene.receipt}); }
    bool evidence() const
    {
        return drives.hold("/xresultfile", {scene.code}) ||
               (drives.hold("localtran/", {scene.code}) && drives.hold(".ans", {scene.code}));
    }

    static Slots everySlot(const Drives &drives)
    {
        Slots all;
        for (const char *file : kCardFiles)
            for (const std::string &slot : slotsOf(drives.at(file)))
                if (slot[310] != '\0')
                    all.push_back(slot);
        return all;
    }
    /// A torn save leaves half of one and half of the other.
    bool isKnown(const std::string &slot, const Slots &known) const
    {
        const auto has = [&](std::size_t from, std::size_t length) {
            return std::any_of(known.begin(), known.end(), [&](const std::string &one) {
                return one.compare(from, length, slot, from, length) == 0;
            });
        };
        return has(0, 500) || (happened.torn && has(0, 250) && has(250, 250));
    }
    /// As it was, as it should be, or a part of what was to be appended; of a torn append half a
    /// record, which no program lists.
    bool isBetween(const std::string &file, Slots now) const
    {
        if (happened.torn)
            std::erase_if(now, [](const std::string &slot) {
                return slot.front() != '\0' && slot.find_first_not_of('\0', 250) == slot.npos;
            });
        const Slots before = slotsOf(undisturbed.before.at(file));
        const Slots after = slotsOf(undisturbed.after.at(file));
        if (now == before || now == after)
            return true;
        if (now.size() < before.size() || (!happened.again && now.size() > after.size()))
            return false;
        for (std::size_t i = 0; i < now.size(); ++i) {
            Slots known(before.begin() + std::min(i, before.size()),
                        before.begin() + std::min(i + 1, before.size()));
            if (i >= before.size() || happened.torn)
                known.insert(known.end(), after.begin(), after.end());
            if (happened.torn)
                known.emplace_back(500, '\0');
            if (!isKnown(now[i], known))
                return false;
        }
        return true;
    }

    std::string answerWrong() const
    {
        const std::string answer = drives.at("c/lumbrio/xsend.ans");
        const std::string word = answer.substr(0, answer.find('\r'));
        if (scene.receipt.empty() || happened.again)
            return {};
        // Another tender that lives has an answer of its own to give.
        const bool another = scene.boxes.find("A CARD IS BEING TAKEN") != std::string::npos;
        if (answer.find("of the guest before") != std::string::npos)
            return happened.stopped || happened.lasting || another
                       ? ""
                       : "the answer of the guest before; ";
        const bool approved = word == "\"Approved\"" || word == "\"DECLINE but PARTAIL APPROVAL\"";
        if (approved && !(scene.charged() && (inCardFiles() > 0 || kept())))
            return "approved without a record; ";
        if (word == "\"Declined\"" && scene.charged() && !(unknown() && happened.lasting))
            return "a charged card declined; ";
        if (drives.contains("c/lumbrio/xsend.ans") &&
            std::count(answer.begin(), answer.end(), '\n') < 10)
            return "half an answer; ";
        const bool told = scene.boxes.find(scene.receipt) != std::string::npos;
        if (answer.empty() && scene.charged() && !happened.stopped && !told)
            return "no answer, and nobody is told; ";
        return {};
    }
    std::string left() const
    {
        std::string text;
        for (const auto &[path, content] : drives) {
            const bool work = path.ends_with(".new") || path.ends_with(".part");
            const bool request = path.find("/localtran/") != path.npos && !path.ends_with(".ans");
            if (happened.again && (work || request))
                text += "left: " + path + "; ";
        }
        TestStation other(&scene.station());
        for (const char *file : kCardFiles) {
            if (drives.at(file).empty())
                continue;
            platform::SlotFile slots(other.files, contractOf(file), 500);
            if (!done(slots.open(platform::SlotUse::Rewrite)) || !done(slots.lock()))
                text += std::string("locked: ") + file + "; ";
        }
        return text;
    }
    static std::string contractOf(const std::string &path) { return "f:" + path.substr(1); }

    Scene &scene;
    const Drives &drives;
    const Undisturbed &undisturbed;
    Happened happened;
};

} // namespace faults
