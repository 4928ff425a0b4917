// Source rules: the laws of docs/architecture.md as one function on texts. It reads no files, so
// that it can be tried on made-up sources.
#pragma once

#include <map>
#include <set>
#include <string>

namespace structure {

/// Texts by their paths from the project's folder, with '/'.
using Project = std::map<std::string, std::string>;

/// "path:line: what" for each place that breaks a law; line 1 for what is wrong with a file as a
/// whole. `plan` is the Markdown text with the table of rooms.
std::set<std::string> violations(const std::string &plan, const Project &project);

} // namespace structure
