#include "records/exchange_file.h"

#include <algorithm>

namespace records {

namespace {

bool isControl(char c)
{
    const auto code = static_cast<unsigned char>(c);
    return code < 32 || code == 127;
}

bool endsLine(char c)
{
    return c == '\r' || c == '\n';
}

} // namespace

std::string withoutControls(std::string_view text)
{
    std::string plain(text);
    std::replace_if(plain.begin(), plain.end(), isControl, ' ');
    return plain;
}

ExchangeText boundedText(std::string_view content)
{
    ExchangeText bounded;
    bounded.longer = content.size() > kExchangeLimit;
    if (bounded.longer) // half a line may read as another value
        content = content.substr(0, content.substr(0, kExchangeLimit).find_last_of("\r\n") + 1);
    std::size_t length = 0; // of the line so far
    for (const char c : content) {
        length = endsLine(c) ? 0 : length + 1;
        if (length <= kExchangeLine)
            bounded.text += endsLine(c) || !isControl(c) ? c : ' ';
        else
            bounded.longLines = true;
    }
    return bounded;
}

ExchangeFile readExchange(App &app, const std::string &path)
{
    ExchangeFile file;
    file.outcome = app.files.modified(path, file.modified);
    if (!done(file.outcome))
        return file;
    file.outcome = app.files.readNoLink(path, file.content, kExchangeLimit + 1);
    static_cast<ExchangeText &>(file) = boundedText(file.content);
    if (file.longer) {
        file.content.resize(kExchangeLimit);
        traceProcess(app, {"  LONGER THAN " + std::to_string(kExchangeLimit) +
                           " BYTES, THE REST IS NOT READ - " + path});
    }
    if (file.longLines)
        traceProcess(
            app, {"  LINE LONGER THAN " + std::to_string(kExchangeLine) + " BYTES, CUT - " + path});
    return file;
}

std::string boundedValue(App &app, std::string_view value, std::size_t length, const char *name)
{
    if (value.size() > length)
        traceProcess(app, {std::string("  ") + name + " LONGER THAN " + std::to_string(length) +
                           " CHARACTERS, CUT"});
    return withoutControls(value.substr(0, length));
}

} // namespace records
