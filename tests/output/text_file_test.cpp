#include "output/text_file.h"

#include "list_desk.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

/// The lines of a file of these bytes, then the number of the failure of reading on.
Texts LinesOf(const std::string& bytes) {
    fakes::MemoryFiles files;
    files.Contents["f"] = bytes;
    TextFileReader reader(files.OpenForInput("f"), fakes::WesternPage(), "f");
    Texts lines;
    try {
        for (;;)
            lines.push_back(reader.ReadLine());
    } catch (const Failure& failure) {
        EXPECT_EQ(reader.AtEnd(), failure.Number == failure_number::EndOfFile);
        lines.push_back(std::to_string(failure.Number));
    }
    return lines;
}

TEST(TextFileReader, EndsLinesAtCrAndCrLfAlone) {
    const std::string end = std::to_string(failure_number::EndOfFile);
    const std::string chunk(std::size_t{1} << 16U, 'x');
    const std::string almost = chunk.substr(1);
    const std::string longest(TextFileReader::LongestLine, 'x');
    const std::vector<std::pair<std::string, Texts>> table = {
        {"", {end}},
        {"a\r\nb\r\n", {"a", "b", end}},
        {"a\nb\r\n\n", {"a\nb", "\n", end}},
        {"a\r\r\nb\r", {"a", "", "b", end}},
        {"\xE9\x80\r\n", {"é€", end}},
        {almost + "\r\ny", {almost, "y", end}}, // the pair on both sides of a chunk's end
        {almost + "\r", {almost, end}},
        {longest + "\r", {longest, end}},
        {longest + "x\r", {std::to_string(failure_number::TooLarge)}},
    };
    for (const auto& [bytes, lines] : table)
        EXPECT_EQ(LinesOf(bytes), lines) << bytes.substr(0, 20) << " of " << bytes.size();
}

/// Takes all bytes, but fails at the first write.
struct FailsOnce : OutputFile {
    explicit FailsOnce(std::string& bytes) : Bytes(bytes) {}
    void Write(std::string_view bytes) override {
        Bytes += bytes;
        if (!std::exchange(Failed, true))
            throw Failure("full", fakes::MemoryFiles::DiskFull, "FailsOnce");
    }
    void Close() override {}
    std::string& Bytes;
    bool Failed = false;
};

TEST(TextFileWriter, WritesEverythingOnceWhateverFails) {
    std::string bytes;
    {
        TextFileWriter writer(std::make_unique<FailsOnce>(bytes), fakes::WesternPage(), Unmappable::Fail);
        writer.WriteLine("é");
        EXPECT_THROW(writer.Write("≥"), Failure); // the page has no such character
        EXPECT_THROW(writer.Close(), Failure);
    }
    EXPECT_EQ(bytes, "\xE9\r\n");
}

} // namespace
} // namespace orvane
