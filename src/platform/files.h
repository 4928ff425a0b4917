// Files: what the rooms may do with files, by their Windows paths. A failure is ignored inside
// ErrorsIgnored and else ends the program with the system's message. While the program ends, Files
// is shut.
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

/// Every call returns its outcome for callers that trace it. A failure (other than a missing file
/// in exists(), removeIfThere() or list()) outside ErrorsIgnored has already ended the program
/// through Run::fail when the call returns. When shut (Run::ending()), nothing exists, reads give
/// nothing and writes are dropped: Denied, without a message.
class Files {
public:
    Files(Disk &theDisk, const Drives &theDrives, Run &theRun);

    /// The station and role in the names of this program's work files; set once at the start.
    void signWorkFiles(Maker theMaker) { maker = std::move(theMaker); }
    /// Removes this maker's work files from a folder, and gives their names; see removeWork().
    Outcome removeWorkFiles(std::string_view folder, std::vector<std::string> &removed);

    /// True for a file (not a folder) at the path. An empty path, or one that ends in a separator,
    /// is no file. False also after a failure, which is handled as above.
    bool exists(std::string_view path);
    /// What is at the path; failures as in exists().
    Outcome look(std::string_view path, Found &found);
    bool folderExists(std::string_view path);
    /// exists() for callers that must tell missing from unknown.
    Outcome exists(std::string_view path, bool &there);
    /// When the file was last written to, in local time.
    Outcome modified(std::string_view path, DateTime &when);
    /// Removing a missing file is a failure (NotThere).
    Outcome remove(std::string_view path);
    /// The same, but NotThere is no failure.
    Outcome removeIfThere(std::string_view path);
    /// Whole copy, flushed. A file at `to` is replaced in one step, so that nobody sees half a
    /// copy.
    Outcome copy(std::string_view from, std::string_view to);
    /// Done if the folder already exists; its parent must exist.
    Outcome makeFolder(std::string_view path);
    /// File names in a folder, sorted; empty when there are none, and when the listing fails.
    std::vector<std::string> list(std::string_view folder);
    /// The same for callers that must tell none from unknown.
    Outcome list(std::string_view folder, std::vector<std::string> &names);

    /// Creates an empty file if it is certain that none exists.
    Outcome createIfMissing(std::string_view path);
    /// The whole content; `limit` bytes at most (the rest is left out). Empty after a failure.
    Outcome read(std::string_view path, std::string &content, std::size_t limit = kReadLimit);
    /// The same for a file that another program writes: a link in its place is Broken.
    Outcome readNoLink(std::string_view path, std::string &content, std::size_t limit);
    /// Opened for output: replaces the content in place, creating the file.
    Outcome write(std::string_view path, std::string_view content);
    /// Like write(), and flushed to the disk when it returns.
    Outcome writeFlushed(std::string_view path, std::string_view content);
    /// Opened for append, created when missing.
    Outcome append(std::string_view path, std::string_view content);
    /// Opened for append, locked during the write. Outside ErrorsIgnored a refused lock is a
    /// failure; inside, the write is done anyway.
    Outcome appendLocked(std::string_view path, std::string_view content);
    /// Renames a file durably. Fails if the new name exists.
    Outcome rename(std::string_view from, std::string_view to);
    /// `beginning` + `ending`, or with "-2", "-3" and so on between them if that file exists.
    std::string freeName(std::string_view beginning, std::string_view ending);

    /// Makes the name of a new file durable.
    Outcome flushFolderOf(std::string_view path);

    /// For SlotFile: opens the raw file at a path; failures as above.
    Outcome open(std::string_view path, OpenMode mode, std::unique_ptr<DiskFile> &file);
    /// The same, but a failure does not end the program, and it works when shut. Like every open it
    /// waits until a lease is given back.
    Outcome tryOpen(std::string_view path, OpenMode mode, std::unique_ptr<DiskFile> &file);
    /// Locks `file`, which was opened at `path` in `mode`. If the file was replaced meanwhile,
    /// opens the path again, until the locked file is the one at the path.
    Outcome lock(std::string_view path, OpenMode mode, std::unique_ptr<DiskFile> &file);
    /// Writes and flushes the new content beside `path`, renames it over `path` and flushes the
    /// folder.
    Outcome replaceWhole(std::string_view path, std::string_view content);

    /// Creates a new file, whole and durable when it appears, by the first free name that
    /// freeName() tries; never replaces another. `path` is the name it got, or tried last.
    Outcome writeNew(std::string_view beginning, std::string_view ending, std::string_view content,
                     std::string &path);

    /// Reports a failed operation as described above; returns `outcome`.
    Outcome checked(std::string_view operation, std::string_view path, Outcome outcome);
    bool shut() const { return run.ending(); }
    Outcome realPath(std::string_view path, std::string &real) const
    {
        return drives.resolve(path, real);
    }
    /// For callers that create nothing: the path as spelled if the real spelling is unknown.
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

/// Lines of a text file, ended by CR LF, LF or CR; the last line may have no end.
std::vector<std::string> splitLines(std::string_view content);
/// One line as all our text files have it: a NUL is written as a blank, the end is CR LF.
std::string textLine(std::string_view text);

} // namespace platform
