#include "platform/dialogs.h"

namespace platform {

Answer Dialogs::message(const std::string &title, const std::string &text, Buttons buttons)
{
    if (run.ending())
        return buttons == Buttons::YesNo ? Answer::No : Answer::Cancel;
    return ask(title, text, buttons);
}

std::optional<std::string> Dialogs::input(const std::string &title, const std::string &text,
                                          const std::string &initial, bool hidden)
{
    if (run.ending())
        return std::nullopt;
    return askText(title, text, initial, hidden);
}

void Dialogs::notice(const Notice &notice)
{
    if (!run.ending())
        show(notice);
}

void Dialogs::show(const Notice &notice)
{
    std::string text = notice.text;
    for (const auto &[name, value] : notice.facts)
        text.append("\n").append(name).append(": ").append(value);
    ask(notice.title, notice.file.empty() ? text : text + "\n" + notice.file, Buttons::Ok);
}

} // namespace platform
