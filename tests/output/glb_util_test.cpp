#include "output/glb_util.h"

#include "list_desk.h"

#include <gtest/gtest.h>

#include <new>
#include <stdexcept>

namespace orvane {
namespace {

TEST(WithFailurePath, CleansUpThenReportsAnyExceptionOnce) {
    struct Row {
        std::function<void()> body;
        bool quietCancel;
        std::string report;
    };
    const auto cancel = [] {
        throw Failure("Cancel was selected.", failure_number::Cancelled, "CommonDialog");
    };
    const std::vector<Row> table = {
        {cancel, true, ""},
        {cancel, false, Report("Cancel was selected.", 32755, "CommonDialog")},
        {[] { throw Failure("", -7, ""); }, true,
         "Error Description: \r\nError Number: -7\r\nError Source: "},
        {[] { throw std::bad_alloc(); }, false, Report("Out of memory", 20010, "memory")},
        {[] { throw std::logic_error("odd"); }, true, Report("odd", 20099, "the program")},
        {[] { throw 1; }, false, Report("An unknown failure", 20099, "the program")},
    };
    for (const Row& row : table) {
        fakes::ScriptedMessageBox messages;
        Texts atCleanUp{"not cleaned up"};
        WithFailurePath(messages, row.quietCancel, row.body, [&] { atCleanUp = messages.TakeAll(); });
        EXPECT_EQ(atCleanUp, Texts{});
        EXPECT_EQ(messages.Take(), row.report);
    }
}

TEST(OpenInBrowser, SaysWhatWentWrong) {
    const std::string path = "/a b/ list's.htm";
    for (const auto& [found, starts, message] :
         {std::tuple{33, 33, ""},
          {32, 33, "(!) Browser Not Found: Could not find associated Browser"},
          {33, 32, "(!) URL Failed: Web Page not Opened"}}) {
        fakes::FakeDesktop desktop;
        desktop.shell.Found = found;
        desktop.shell.Starts = starts;
        OpenInBrowser(path, 5, desktop.shell, desktop.messages);
        EXPECT_EQ(desktop.messages.Take(), message);
        EXPECT_EQ(desktop.shell.Started, found + starts == 66 ? Texts{"viewer " + path} : Texts{});
        EXPECT_EQ(desktop.shell.LastOwner, found == 33 ? 5 : 0);
    }
}

std::string CallsOf(const fakes::MemoryClipboard& board) {
    std::string calls;
    for (const std::string& call : board.Calls)
        calls += call + "|";
    return calls;
}

TEST(CopyTextToClipboard, GoesDownTheLadder) {
    using Board = fakes::MemoryClipboard;
    struct Row {
        void (*setUp)(Board&);
        std::string calls;
        Texts messages; ///< of the whole clipboard report
        bool contentStays;
    };
    const std::string filled = "GlobalAlloc 66 359|GlobalLock|lstrcpy|GlobalUnlock|";
    const std::string given = filled + "OpenClipboard|EmptyClipboard|SetClipboardData 1|CloseClipboard|";
    const std::string unlockFails = filled + "CloseClipboard|GlobalFree|";
    const std::string noUnlock = "Could not unlock memory location. Copy aborted.";
    const std::string noOpen = "Could not open the Clipboard. Copy aborted.";
    const std::string noClose = "Could not close Clipboard.";
    const std::string noMemory =
        Report("There is no memory for the 359 bytes of the list", 20010, "GlobalAlloc");
    const std::string noAddress =
        Report("The memory block for the clipboard cannot be locked", 20010, "GlobalLock");
    const std::string notTaken = Report("The clipboard did not take the list", 20011, "SetClipboardData");
    const std::vector<Row> table = {
        {[](Board&) {}, given, {BoardSuccess}, false},
        {[](Board& b) { b.CannotClose = true; }, given, {noClose, BoardSuccess}, false},
        {[](Board& b) { b.NoBlock = true; }, "GlobalAlloc 66 359|", {noMemory}, true},
        {[](Board& b) { b.NoLock = true; }, "GlobalAlloc 66 359|GlobalLock|GlobalFree|", {noAddress}, true},
        {[](Board& b) { b.StaysLocked = true; }, unlockFails, {noUnlock}, true},
        {[](Board& b) { b.StaysLocked = b.CannotClose = true; }, unlockFails, {noUnlock, noClose}, true},
        {[](Board& b) { b.CannotOpen = true; }, filled + "OpenClipboard|GlobalFree|", {noOpen}, true},
        {[](Board& b) { b.CannotSet = true; }, given + "GlobalFree|", {notTaken}, false},
    };
    for (const Row& row : table) {
        ListDesk desk;
        row.setUp(desk.desktop.board);
        EXPECT_EQ(desk.ToBoard() == "earlier content", row.contentStays) << row.messages[0];
        EXPECT_EQ(desk.desktop.messages.TakeAll(), row.messages);
        EXPECT_EQ(CallsOf(desk.desktop.board), row.calls) << row.messages[0];
    }
}

TEST(CopyTextToClipboard, RefusesTheCharacterThatWouldEndTheText) {
    fakes::FakeDesktop desktop;
    const std::string cutShort("a\0b", 3);
    EXPECT_THROW(CopyTextToClipboard(cutShort, desktop.board, desktop.platform.Page, desktop.messages),
                 Failure);
    EXPECT_EQ(desktop.board.Calls, Texts{});
}

} // namespace
} // namespace orvane
