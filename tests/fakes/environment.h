// The environment of the test program, changed for a while.
#pragma once

#include <cstdlib>
#include <optional>
#include <string>
#include <utility>

namespace orvane::fakes {

/// Sets an environment variable; its end puts the variable back as it was.
struct SetVariable {
    SetVariable(std::string name, const std::string& value) : Name(std::move(name)) {
        if (const char* const before = std::getenv(Name.c_str()))
            Before = before;
        ::setenv(Name.c_str(), value.c_str(), 1);
    }
    ~SetVariable() {
        if (Before)
            ::setenv(Name.c_str(), Before->c_str(), 1);
        else
            ::unsetenv(Name.c_str());
    }
    std::string Name;
    std::optional<std::string> Before;
};

} // namespace orvane::fakes
