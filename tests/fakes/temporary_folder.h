// A folder of its own for a test, gone with everything in it at the end.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace orvane::fakes {

struct TemporaryFolder {
    TemporaryFolder() : Root(std::filesystem::temp_directory_path() / "orvane-XXXXXX") {
        if (::mkdtemp(Root.data()) == nullptr)
            std::abort();
    }
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(Root, ignored);
    }

    [[nodiscard]] const std::string& Path() const { return Root; }
    [[nodiscard]] std::string Path(const std::string& name) const { return Root + "/" + name; }

    // NOLINTNEXTLINE(modernize-use-nodiscard): often for the file alone
    std::string Put(const std::string& name, std::string_view content, bool executable = false) const {
        std::ofstream(Path(name), std::ios::binary) << content;
        if (executable)
            std::filesystem::permissions(Path(name), std::filesystem::perms::owner_all);
        return Path(name);
    }
    [[nodiscard]] std::string Get(const std::string& name) const {
        std::ifstream file(Path(name), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    std::string Root;
};

} // namespace orvane::fakes
