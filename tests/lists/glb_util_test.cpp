#include "fakes/desktop.h"
#include "lists/glb_util.h"

namespace orvane {
namespace {

using namespace fakes;

TEST(CopyTextToClipboard, EndsAtTheCallThatFails) {
    const std::string before = "earlier content";
    const std::string noMemory = "There is no memory for the 5 bytes of the list";
    const std::string noClose = "Could not close Clipboard.";
    const struct {
        std::set<std::string, std::less<>> fails;
        Texts messages;
        std::string failure;
        std::string content; ///< of the clipboard then
        std::string lastCall;
    } rows[] = {
        {{}, {}, "", "t\xE9xt", "CloseClipboard"},
        {{"CloseClipboard"}, {noClose}, "", "t\xE9xt", "CloseClipboard"},
        {{"GlobalAlloc"}, {}, noMemory, before, "GlobalAlloc"},
        {{"GlobalLock"}, {}, noMemory, before, "GlobalLock"},
        {{"GlobalUnlock"}, {"Could not unlock memory location. Copy aborted."}, "", before, "CloseClipboard"},
        {{"OpenClipboard"}, {"Could not open the Clipboard. Copy aborted."}, "", before, "OpenClipboard"},
        {{"SetClipboardData"}, {}, "The clipboard did not take the list", "", "CloseClipboard"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::PrintToString(row.fails));
        ScriptedMessageBox messages;
        MemoryClipboard clipboard;
        clipboard.Fails = row.fails;
        const Failure failure = FailureOf([&] {
            const bool aborted = CopyTextToClipboard("téxt", clipboard, WesternPage(), messages);
            EXPECT_EQ(aborted, row.content == before);
        });
        EXPECT_EQ(messages.TakeAll(), row.messages);
        EXPECT_EQ(failure.Description, row.failure);
        EXPECT_EQ(clipboard.Content, row.content);
        EXPECT_EQ(clipboard.Calls.back(), row.lastCall);
        const std::size_t blockSize = row.content == "t\xE9xt" ? 5 : 0; // freed unless it was handed over
        EXPECT_EQ(clipboard.Block.size(), blockSize);
    }
}

} // namespace
} // namespace orvane
