#include "support/golden_table.h"

#include "platform/files.h"

namespace support {

void expectTable(const std::string &name,
                 const std::function<std::vector<std::string>(const std::string &input)> &outputs)
{
    const std::string golden = testFile("golden/" + name);
    std::string table = golden.substr(0, golden.find('\n') + 1);
    for (const std::string &row : platform::splitLines(golden.substr(table.size()))) {
        const std::string input = row.substr(0, row.find('|'));
        table += input;
        for (const std::string &output :
             outputs(replaced(replaced(input, R"(\r)", "\r"), R"(\n)", "\n")))
            table += "|" + replaced(replaced(output, "\r", R"(\r)"), "\n", R"(\n)");
        table += "\n";
    }
    EXPECT_EQ(table, golden);
}

} // namespace support
