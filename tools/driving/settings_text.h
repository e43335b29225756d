// Settings files, written without the program.
#pragma once

#include <sstream>
#include <string>
#include <vector>

namespace orvane::driving {

/// The content of a settings file. The default values are those of the saved.stg for the first start.
struct SettingsText {
    std::vector<std::string> Groups = {"Group 1", "Group 2"};
    std::string SampleSize{};
    int CodeAlphaNum = 1;
    int CodeSeqRandom = 0;
    int CodeLength = 3;
    int BlockOption = 0;
    std::string EqBlockSize{};
    std::string UnEqBlockSize{};
    int OutputOption = 0;
};

/// The bytes of the settings file.
inline std::string BytesOf(const SettingsText& settings) {
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

} // namespace orvane::driving
