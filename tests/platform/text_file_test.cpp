#include "platform/text_file.h"

#include "fakes/desktop.h"

namespace orvane {
namespace {

using namespace fakes;

/// Hands out its bytes in pieces, as a file does, and may break behind the last of them.
struct FileInPieces : ReadableFile {
    FileInPieces(const Texts& pieces, bool breaks) : Pieces(pieces.begin(), pieces.end()), Breaks(breaks) {}
    std::size_t Read(std::span<char> buffer) override {
        if (Pieces.empty() && Breaks)
            throw Failure("the disk broke", 5, "a fake");
        if (Pieces.empty())
            return 0;
        const std::size_t count = Pieces.front().copy(buffer.data(), buffer.size());
        Pieces.pop_front();
        return count;
    }
    std::deque<std::string> Pieces;
    bool Breaks;
};

TEST(TextFileReader, GivesEveryCompleteLineThenTellsWhyThereIsNoOther) {
    const std::string end = "The file f ends too early";
    const std::string lineFeeds = end + ": its lines must end in CR LF, not in LF alone";
    const std::string longLine = "A line of the file f is longer than 8 characters";
    const std::string largeFile = "The file f is larger than 20 bytes and is not read to its end";
    const struct {
        Texts pieces; ///< of the file's bytes
        Texts lines;
        std::string failure;
        bool breaks = false; ///< the disk, behind the last piece
    } rows[] = {
        {{"a\r\n\r\nb\r\n"}, {"a", "", "b"}, end},
        {{"a\r\r\nb\r"}, {"a", "", "b"}, end},
        {{"a\r", "\nb", "c"}, {"a", "bc"}, end},
        {{"a\nb\r\nc\r\n"}, {"a\nb", "c"}, lineFeeds},
        {{"a\nb\n"}, {"a\nb\n"}, lineFeeds},
        {{"12345678\r\n12\r\n123456"}, {"12345678", "12", "123456"}, end}, // no size is exceeded
        {{"a\r\n123456789\r\nc"}, {"a"}, longLine},
        {{"a\r\nb\r\nc", "12345678901234"}, {"a", "b"}, largeFile},
        {{"a\r\nb\r\nc"}, {"a", "b"}, "the disk broke", true},
        {{"a\r\nb\r\n"}, {"a", "b"}, "the disk broke", true},
    };
    constexpr LineRules rules{.LineFeedEndsLine = false, .LongestLine = 8, .LargestFile = 20};
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::PrintToString(row.pieces));
        FileInPieces file(row.pieces, row.breaks);
        TextFileReader reader(file, WesternPage(), "f", rules);
        Texts lines;
        const Failure failure = FailureOf([&] {
            while (lines.size() < 10) // more than any row has
                lines.push_back(reader.ReadLine());
        });
        EXPECT_EQ(lines, row.lines);
        EXPECT_EQ(failure.Description, row.failure);
    }
}

} // namespace
} // namespace orvane
