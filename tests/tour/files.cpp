#include "files.h"

#include "child.h"

#include <fstream>
#include <iterator>

namespace orvane::tour {

std::string ReadFile(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

void WriteFile(const std::filesystem::path& path, const std::string& bytes) {
    std::filesystem::create_directories(path.parent_path());
    std::ofstream file(path, std::ios::binary);
    file << bytes;
    if (!file.flush())
        throw Fault("cannot write " + path.string());
}

} // namespace orvane::tour
