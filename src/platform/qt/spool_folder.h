// SpoolFolder: where a spool printer puts its jobs, NNNN.pdf and NNNN.txt, numbered on from what
// is there, whichever process puts them.
#pragma once

#include "platform/work_name.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace platform {

class SpoolFolder {
public:
    /// `path`: a real one. `theMaker` signs the files that are not finished yet.
    SpoolFolder(Disk &theDisk, std::string path, Maker theMaker);

    /// Looks up the last number, so that the first put() need not; otherwise put() does it.
    void warmUp();
    /// Stores a job under the next free number. Each file appears whole under its name, the text
    /// first; a job that cannot be stored leaves nothing. The folder is made when it is missing.
    Outcome put(std::string_view pdf, std::string_view text);
    /// Removes what this maker, killed, has left unfinished; see removeWork().
    void removeUnfinished(std::vector<std::string> &removed);

private:
    void findLastNumber();
    Outcome write(const std::string &path, std::string_view bytes);
    Outcome finish(const std::string &unfinishedPdf, const std::string &unfinishedText);
    Outcome name(const std::string &unfinished, const std::string &path, bool &taken);

    Disk &disk;
    std::string folder;
    Maker maker;
    int lastNumber = -1; // -1: not looked up yet
};

} // namespace platform
