// Golden tables: files of rows "input|output|output" below a line of headings, below tests/golden/.
// \r and \n in a row stand for those bytes. Golden stories: lines "> command", each followed by
// what happened then; # begins a line for the reader.
#pragma once

#include "platform/files.h"
#include "support/test_files.h"

namespace support {

/// Makes each row anew, `outputs` giving the other columns for an input; the same table must come
/// out again.
template <class Outputs> void expectTable(const std::string &name, Outputs outputs)
{
    const auto replaced = [](const std::string &text, const char *what, const char *by) {
        return std::regex_replace(text, std::regex(what), by);
    };
    const std::string golden = testFile("golden/" + name);
    std::string table = golden.substr(0, golden.find('\n') + 1);
    for (const std::string &row : platform::splitLines(golden.substr(table.size()))) {
        const std::string input = row.substr(0, row.find('|'));
        table += input;
        const std::string bytes = replaced(replaced(input, R"(\\r)", "\r"), R"(\\n)", "\n");
        for (const std::string &output : std::vector<std::string>(outputs(bytes)))
            table += "|" + replaced(replaced(output, "\r", R"(\r)"), "\n", R"(\n)");
        table += "\n";
    }
    EXPECT_EQ(table, golden);
}

/// Does all commands anew, `press` telling for each what happened; the same story must come out.
template <class Press> void expectStory(const std::string &name, Press press)
{
    const std::string golden = testFile("golden/" + name);
    std::string told;
    for (const std::string &line : platform::splitLines(golden)) {
        if (line.empty() || line[0] == '#' || line[0] == '>')
            told += line + "\n";
        if (line.starts_with("> "))
            told += std::string(press(line.substr(2)));
    }
    EXPECT_EQ(told, golden);
}

} // namespace support
