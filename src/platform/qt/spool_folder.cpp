#include "platform/qt/spool_folder.h"

#include <QDir>
#include <QString>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <utility>

namespace platform {

namespace {

constexpr const char *kUnfinished = ".part";

std::string numbered(const std::string &folder, int number)
{
    char text[16];
    std::snprintf(text, sizeof text, "/%04d", number);
    return folder + text;
}

} // namespace

SpoolFolder::SpoolFolder(Disk &theDisk, std::string path, Maker theMaker)
    : disk(theDisk), folder(std::move(path)), maker(std::move(theMaker))
{
}

void SpoolFolder::warmUp()
{
    if (lastNumber < 0)
        findLastNumber();
}

Outcome SpoolFolder::put(std::string_view pdf, std::string_view text)
{
    warmUp();
    if (!QDir().mkpath(QString::fromStdString(folder)))
        return Outcome::Denied;
    const std::string next = numbered(folder, lastNumber + 1);
    const std::string unfinishedPdf = workName(next + ".pdf", maker, kUnfinished);
    const std::string unfinishedText = workName(next + ".txt", maker, kUnfinished);
    Outcome outcome = write(unfinishedText, text);
    if (done(outcome))
        outcome = write(unfinishedPdf, pdf);
    if (done(outcome))
        outcome = finish(unfinishedPdf, unfinishedText);
    if (!done(outcome)) {
        for (const std::string &path : {unfinishedText, unfinishedPdf})
            disk.remove(path);
    }
    return outcome;
}

void SpoolFolder::removeUnfinished(std::vector<std::string> &removed)
{
    removeWork(disk, folder, maker, removed);
}

void SpoolFolder::findLastNumber()
{
    lastNumber = 0;
    std::vector<std::string> names;
    disk.list(folder, names);
    for (const std::string &name : names)
        lastNumber = std::max(lastNumber, std::atoi(name.c_str()));
}

Outcome SpoolFolder::write(const std::string &path, std::string_view bytes)
{
    std::unique_ptr<DiskFile> file;
    const Outcome outcome = disk.open(path, OpenMode::CreateNew, file);
    return done(outcome) ? file->writeAt(0, bytes) : outcome;
}

/// Gives the job the next number that neither a text nor a PDF has. Whoever has named the text has
/// the number, because no file ever takes the place of another.
Outcome SpoolFolder::finish(const std::string &unfinishedPdf, const std::string &unfinishedText)
{
    for (;;) {
        const std::string stem = numbered(folder, ++lastNumber);
        bool taken = false;
        Outcome outcome = name(unfinishedText, stem + ".txt", taken);
        if (taken)
            continue;
        if (!done(outcome))
            return outcome;
        outcome = name(unfinishedPdf, stem + ".pdf", taken);
        if (done(outcome))
            return outcome;
        if (!taken) {
            disk.remove(stem + ".txt");
            return outcome;
        }
        // Somebody has taken the text of an older job away.
        if (outcome = disk.renameToFree(stem + ".txt", unfinishedText); !done(outcome))
            return outcome;
    }
}

Outcome SpoolFolder::name(const std::string &unfinished, const std::string &path, bool &taken)
{
    Found found = Found::Nothing;
    const Outcome outcome = disk.renameToFree(unfinished, path);
    taken = !done(outcome) && done(disk.look(path, found)) && found != Found::Nothing;
    return outcome;
}

} // namespace platform
