#include "validation/arguments.h"

#include <stdexcept>

namespace orvane::validation {

Arguments ReadArguments(const std::vector<std::string>& words) {
    const auto refuse = [] { throw std::runtime_error(std::string("Usage: ") + Usage); };
    Arguments arguments;
    std::vector<std::string> folders;
    for (std::size_t at = 0; at < words.size(); ++at) {
        const std::string& word = words[at];
        if (word == "--quick") {
            arguments.Quick = true;
        } else if (word == "--commit" || word == "--tree" || word == "--built") {
            if (++at == words.size())
                refuse();
            if (word == "--commit")
                arguments.Sources.Commit = words[at];
            else if (word == "--tree")
                arguments.Sources.Tree = words[at];
            else
                arguments.Sources.Built = words[at];
        } else if (word.compare(0, 2, "--") == 0) {
            refuse();
        } else {
            folders.push_back(word);
        }
    }
    if (folders.size() != 2)
        refuse();
    arguments.App = folders[0];
    arguments.Output = folders[1];
    return arguments;
}

} // namespace orvane::validation
