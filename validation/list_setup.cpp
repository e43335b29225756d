#include "validation/list_setup.h"

#include <sstream>

namespace orvane::validation {

namespace {

int OutputOption(Form form) {
    switch (form) {
    case Form::Window:
        return 1;
    case Form::Clipboard:
        return 2;
    default:
        return 0;
    }
}

} // namespace

std::string SettingsBytes(const ListSetup& setup) {
    std::ostringstream file;
    const auto write = [&](const auto& line) { file << line << "\r\n"; };
    write("[Number of groups (2 - 16]");
    write(setup.Groups.size());
    write("[Groups: Name of each group on a separate line]");
    for (const std::string& group : setup.Groups)
        write(group);
    write("[Sample Size]");
    write(setup.SampleSize);
    write("[Code AlphaNum: 0-Alpha, 1-Numeric, 2-Mixed]");
    write(static_cast<int>(setup.Characters));
    write("[Code SeqRandum: 0-Sequential, 1-Random]");
    write(setup.RandomCodes ? 1 : 0);
    write("[Code Length: (3-10)]");
    write(setup.CodeLength);
    write("[Block Option: 0-OnlyOneBlock, 1-EqualSize, 2-RandomSizesOf, 3-RandomBlockSize]");
    write(static_cast<int>(setup.Blocks));
    write("[Equal Block Size: Enter size]");
    write(setup.EqualSize == 0 ? std::string() : std::to_string(setup.EqualSize));
    write("[UnEqual Block Sizes: Enter sizes(comma delimmited and/or range]");
    write(setup.ListedSizesText);
    write("[Output Option]");
    write(OutputOption(setup.Output));
    return file.str();
}

int ShortestCode(int sampleSize) {
    int length = 1;
    for (double reach = 3.16; sampleSize > reach; reach *= 10)
        ++length;
    return length;
}

std::string FileName(const ListSetup& setup) {
    const std::string number = std::to_string(setup.Number);
    return "list-" + (number.size() < 2 ? "0" + number : number) +
           (setup.Output == Form::WebPage ? ".htm" : ".txt");
}

std::string Text(BlockOption option) {
    switch (option) {
    case BlockOption::One:
        return "one block";
    case BlockOption::Equal:
        return "equal blocks";
    case BlockOption::Listed:
        return "sizes of a list";
    default:
        return "random sizes";
    }
}

std::string Text(Form form) {
    switch (form) {
    case Form::TextFile:
        return "text file";
    case Form::WebPage:
        return "web page";
    case Form::Window:
        return "window";
    default:
        return "clipboard";
    }
}

std::string Text(Way way) {
    switch (way) {
    case Way::Typed:
        return "typed";
    case Way::Clicked:
        return "clicked";
    default:
        return "loaded";
    }
}

std::string CodeText(const ListSetup& setup) {
    const char* characters = setup.Characters == Alphabet::Letters  ? "letters"
                             : setup.Characters == Alphabet::Digits ? "digits"
                                                                    : "mixed";
    return std::to_string(setup.CodeLength) + " " + characters + ", " +
           (setup.RandomCodes ? "random" : "sequential");
}

} // namespace orvane::validation
