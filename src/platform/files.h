// Files: what the rooms may do with files, in contract paths. It applies the two readings of a
// failure (passed over inside ErrorsIgnored, else the program ends with the system's message) and
// shuts once the end was asked for.
#pragma once

#include "platform/disk.h"
#include "platform/drives.h"
#include "platform/outcome.h"
#include "platform/run.h"
#include "platform/work_name.h"

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace platform {

/// Every call returns its outcome for whoever wants to trace it. A failure (other than a missing
/// file in exists(), removeIfThere() or list()) outside ErrorsIgnored has already ended the
/// program through Run::fail when the call returns. Shut (Run::ending()), nothing exists, reads
/// give nothing and writes are dropped: Denied, without a message.
class Files {
public:
    Files(Disk &theDisk, const Drives &theDrives, Run &theRun);

    /// Who signs the work files from here on; set once, by whoever builds the services.
    void signWorkFiles(Maker theMaker) { maker = std::move(theMaker); }
    /// Removes the work files so signed from a folder, and gives their names; see removeWork().
    Outcome removeWorkFiles(std::string_view folder, std::vector<std::string> &removed);

    /// True for a file (not a folder) at the path. An empty path, or one that ends in a
    /// separator, is no file. False also where the look fails, by the rules above.
    bool exists(std::string_view path);
    /// What stands at the path, by the same rules.
    Outcome look(std::string_view path, Found &found);
    bool folderExists(std::string_view path);
    /// The same for those to whom not there and unknown are not alike.
    Outcome exists(std::string_view path, bool &there);
    /// When the file was last written to, in local time.
    Outcome modified(std::string_view path, DateTime &when);
    /// Removing what is not there is a failure (NotThere); callers test first where it may be.
    Outcome remove(std::string_view path);
    /// Removes the file when it is there; NotThere is no failure.
    Outcome removeIfThere(std::string_view path);
    /// Whole copy, flushed, over whatever is at `to`, which is replaced at once: nobody sees half.
    Outcome copy(std::string_view from, std::string_view to);
    /// Done when the folder is there already; its parent must exist.
    Outcome makeFolder(std::string_view path);
    /// File names in a folder, sorted; empty when there is none, and where the listing fails.
    std::vector<std::string> list(std::string_view folder);
    /// The same for those to whom none and unknown are not alike.
    Outcome list(std::string_view folder, std::vector<std::string> &names);

    /// "Create if missing": opened for output and closed when it is certain not to exist.
    Outcome createIfMissing(std::string_view path);
    /// The whole content; `limit` bytes at most (the rest is left out). Empty after a failure.
    Outcome read(std::string_view path, std::string &content, std::size_t limit = kReadLimit);
    /// The same of a file that another program was to write there: a link is Broken.
    Outcome readNoLink(std::string_view path, std::string &content, std::size_t limit);
    /// Opened for output: replaces the content in place, creating the file.
    Outcome write(std::string_view path, std::string_view content);
    /// Like write(), and on the disk when it returns.
    Outcome writeFlushed(std::string_view path, std::string_view content);
    /// Opened for append, created when missing.
    Outcome append(std::string_view path, std::string_view content);
    /// Opened for append and locked around the write. Outside ErrorsIgnored a refused lock is a
    /// failure; inside, the write is done all the same.
    Outcome appendLocked(std::string_view path, std::string_view content);
    /// Gives a file another name, durably. Never takes the place of what is there: a failure.
    Outcome rename(std::string_view from, std::string_view to);
    /// `beginning` + `ending`, or with "-2", "-3" and so on between them where there is such a
    /// file.
    std::string freeName(std::string_view beginning, std::string_view ending);

    /// Makes the name of a new file durable, by the same rules.
    Outcome flushFolderOf(std::string_view path);

    /// For SlotFile: the raw file behind a path, under the same rules.
    Outcome open(std::string_view path, OpenMode mode, std::unique_ptr<DiskFile> &file);
    /// The same without judging the outcome, even when shut. As every open does, it waits for a
    /// lease to be given back.
    Outcome tryOpen(std::string_view path, OpenMode mode, std::unique_ptr<DiskFile> &file);
    /// Takes the lock through `file`, which was opened at `path` in `mode`. A file that was
    /// replaced meanwhile is opened again, until the locked one is the one at the path.
    Outcome lock(std::string_view path, OpenMode mode, std::unique_ptr<DiskFile> &file);
    /// New content written and flushed beside `path`, renamed over it, the folder flushed.
    Outcome replaceWhole(std::string_view path, std::string_view content);

    /// A new file, whole and durable when it appears, of the first of the names that freeName()
    /// would try; never in the place of another. `path` is the one it got, or tried last.
    Outcome writeNew(std::string_view beginning, std::string_view ending, std::string_view content,
                     std::string &path);

    /// Reports a failed operation by the rules above; returns `outcome`.
    Outcome judge(std::string_view operation, std::string_view path, Outcome outcome);
    bool shut() const { return run.ending(); }
    Outcome realPath(std::string_view path, std::string &real) const
    {
        return drives.resolve(path, real);
    }
    /// For those who create nothing: as spelled where it cannot be found out.
    std::string realPath(std::string_view path) const { return drives.resolve(path); }
    Disk &rawDisk() { return disk; }
    Run &theRun() { return run; }

    static constexpr std::size_t kReadLimit = 64U << 20U;

private:
    template <typename Call>
    Outcome perform(std::string_view operation, std::string_view path, Call call);
    Outcome openReal(const std::string &real, OpenMode mode, std::unique_ptr<DiskFile> &file);
    using Rename = Outcome (Disk::*)(const std::string &, const std::string &);
    template <typename Fill>
    Outcome replaceFile(const std::string &real, Fill fill, Rename move = &Disk::rename);
    Outcome listFiles(const std::string &real, std::vector<std::string> &names);
    Outcome readAs(OpenMode mode, std::string_view path, std::string &content, std::size_t limit);
    Outcome writeInPlace(std::string_view path, std::string_view content, bool flushed);
    Outcome appendTo(DiskFile &file, std::string_view path, std::string_view content);

    Disk &disk;
    const Drives &drives;
    Run &run;
    Maker maker;
};

/// Lines of a text file: ended by CR LF, LF or CR, a last one without an end included.
std::vector<std::string> splitLines(std::string_view content);
/// One line as every text file of the contracts has it: a NUL is written as a blank, the end is
/// CR LF.
std::string textLine(std::string_view text);

} // namespace platform
