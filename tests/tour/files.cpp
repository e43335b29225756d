#include "files.h"

#include "child.h"

#include <fstream>
#include <iterator>
#include <sstream>

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

std::string BytesOf(const Settings& settings) {
    std::ostringstream bytes;
    const auto write = [&](const auto& line) { bytes << line << "\r\n"; };
    write("[Number of groups (2 - 16]");
    write(settings.Groups.size());
    write("[Groups: Name of each group on a separate line]");
    for (const std::string& group : settings.Groups)
        write(group);
    write("[Sample Size]");
    write(settings.SampleSize);
    write("[Code AlphaNum: 0-Alpha, 1-Numeric, 2-Mixed]");
    write(settings.CodeAlphaNum);
    write("[Code SeqRandum: 0-Sequential, 1-Random]");
    write(settings.CodeSeqRandom);
    write("[Code Length: (3-10)]");
    write(settings.CodeLength);
    write("[Block Option: 0-OnlyOneBlock, 1-EqualSize, 2-RandomSizesOf, 3-RandomBlockSize]");
    write(settings.BlockOption);
    write("[Equal Block Size: Enter size]");
    write(settings.EqBlockSize);
    write("[UnEqual Block Sizes: Enter sizes(comma delimmited and/or range]");
    write(settings.UnEqBlockSize);
    write("[Output Option]");
    write(settings.OutputOption);
    return bytes.str();
}

} // namespace orvane::tour
