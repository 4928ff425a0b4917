// CommandState: what the procedures decide of a command that their screen shows.
#pragma once

namespace platform {

struct CommandState {
    bool enabled = true;
    bool visible = true;
    bool operator==(const CommandState &) const = default;
};

} // namespace platform
