#include "written_lists.h"

#include "desktop.h"

#include <algorithm>
#include <map>
#include <set>

namespace orvane::driving {

namespace {

constexpr std::size_t ColumnWidth = 20;

/// The lines of a text. Throws Fault unless every line ends in CR LF.
std::vector<std::string> Lines(const std::string& text) {
    std::vector<std::string> lines;
    std::size_t begin = 0;
    while (begin < text.size()) {
        const std::size_t end = text.find("\r\n", begin);
        if (end == std::string::npos)
            throw Fault("the list does not end in CR LF");
        lines.push_back(text.substr(begin, end - begin));
        if (lines.back().find_first_of("\r\n") != std::string::npos)
            throw Fault("a line end of the list is not CR LF");
        begin = end + 2;
    }
    return lines;
}

Subject SubjectOf(const std::string& cell, const std::string& between) {
    const std::size_t at = cell.find(between);
    if (at == std::string::npos)
        throw Fault("no cell of a list: " + cell);
    return {cell.substr(0, at), cell.substr(at + between.size())};
}

} // namespace

std::vector<Block> BlocksOfText(const std::string& text) {
    std::vector<Block> blocks(1);
    for (const std::string& line : Lines(text)) {
        if (!line.empty() && line.find_first_not_of('=') == std::string::npos) {
            blocks.emplace_back();
            continue;
        }
        for (std::size_t at = 0; at < line.size(); at += ColumnWidth) {
            std::string cell = line.substr(at, ColumnWidth);
            cell.erase(cell.find_last_not_of(' ') + 1);
            if (!cell.empty())
                blocks.back().push_back(SubjectOf(cell, ": "));
        }
    }
    if (!blocks.back().empty())
        throw Fault("there is no ruled line below the last block");
    blocks.pop_back();
    return blocks;
}

std::vector<Block> BlocksOfPage(const std::string& page) {
    const std::string open = "<td>";
    const std::string close = "</b></td>";
    const auto otherLines = {
        "<html><head><title>Random Sequence</title></head><body style='font-family:Arial'>",
        "<table border='",
        "</tr><tr>",
        "<td>&nbsp;</td>",
        "</tr></table>",
        "</body></html>"};
    std::vector<Block> blocks(1);
    for (const std::string& line : Lines(page)) {
        if (line == "<hr>")
            blocks.emplace_back();
        else if (line.starts_with(open) && line.ends_with(close))
            blocks.back().push_back(
                SubjectOf(line.substr(open.size(), line.size() - open.size() - close.size()), ": <b>"));
        else if (std::ranges::none_of(otherLines, [&](const char* start) { return line.starts_with(start); }))
            throw Fault("no line of a web page: " + line);
    }
    if (!blocks.back().empty() || !page.ends_with("<hr>\r\n</body></html>\r\n"))
        throw Fault("the web page is not complete");
    blocks.pop_back();
    return blocks;
}

void Judge(const std::vector<Block>& blocks, const ListDemands& demands) {
    std::set<std::string> codes;
    std::size_t subjects = 0;
    for (const Block& block : blocks) {
        if (subjects >= demands.Least)
            throw Fault("the list goes on behind its " + std::to_string(demands.Least) + " subjects");
        subjects += block.size();
        if (std::ranges::find(demands.Sizes, block.size()) == demands.Sizes.end())
            throw Fault("a block of " + std::to_string(block.size()) + " subjects");
        std::map<std::string, std::size_t> counts;
        for (const Subject& subject : block) {
            ++counts[subject.Group];
            if (subject.Code.size() != demands.CodeLength ||
                subject.Code.find_first_not_of(demands.Characters) != std::string::npos)
                throw Fault("the code " + subject.Code);
            if (!codes.insert(subject.Code).second)
                throw Fault("two subjects have the code " + subject.Code);
        }
        for (const std::string& group : demands.Groups)
            if (counts[group] * demands.Groups.size() != block.size())
                throw Fault(std::to_string(counts[group]) + " times " + group + " in a block of " +
                            std::to_string(block.size()));
    }
    if (subjects < demands.Least)
        throw Fault("a list of only " + std::to_string(subjects) + " subjects");
}

} // namespace orvane::driving
