#include "output/output_document.h"

#include "list_desk.h"

#include <gtest/gtest.h>

#include <tuple>

namespace orvane {
namespace {

TEST(OutputDocument, SavesCopiesOfTheFileAndDeletesItAtTheClose) {
    ListDesk desk;
    auto& contents = desk.desktop.files.Contents;
    const std::string wrong = "Only text files allowed!";
    desk.windowDialog.Answers = {"/x/a.htm", "/x/b", "/x/a.TXT", std::nullopt, "/x/b.txt", "/x/c.txt"};
    desk.window.WhileOpen = [&] {
        desk.window.Document.SaveCmd_Click();
        EXPECT_EQ(desk.desktop.messages.TakeAll(), (Texts{wrong, wrong}));
        desk.window.Document.SaveCmd_Click();
        desk.window.Document.SaveCmd_Click();
        desk.desktop.files.CopyFails = true;
        desk.window.Document.SaveCmd_Click();
        EXPECT_EQ(desk.desktop.messages.Take(),
                  Report("cannot copy /program/00000000.tmp", 5, "MemoryFiles"));
        desk.windowDialog.Fails = Failure("no prompt", 9, "CommonDialog");
        desk.window.Document.SaveCmd_Click();
        EXPECT_EQ(desk.desktop.messages.Take(), Report("no prompt", 9, "CommonDialog"));
    };
    const std::string text = desk.ToWindow();
    EXPECT_EQ(contents, (std::map<std::string, std::string>{{"/x/a.TXT", text}, {"/x/b.txt", text}}));
    EXPECT_EQ(desk.windowDialog.DefaultExt, "htm");
    for (const auto& look : desk.windowDialog.Shown)
        EXPECT_EQ(std::tie(look.save, look.flags, look.fileName, look.title, look.filter),
                  std::tuple(true, 2, "output", "Save to File As...", "Text file (*.txt)|*.txt"));

    desk.window.WhileOpen = [&] { desk.desktop.files.Closed = {"/program/00000000.tmp"}; };
    desk.ToWindow(); // a file that cannot be deleted stays, and nobody is told
    EXPECT_EQ(contents.size(), 3U);
    desk.desktop.files.Closed.clear();
    contents.clear();
    desk.windowDialog.Answers = {"/x/d.txt"};
    desk.window.WhileOpen = [&] {
        contents.clear(); // somebody else deletes it
        desk.window.Document.SaveCmd_Click();
        EXPECT_NE(desk.desktop.messages.Take().find("Error Description: "), std::string::npos);
    };
    desk.ToWindow();
    EXPECT_TRUE(contents.empty());
}

TEST(OutputDocument, ShowsWhatItCanReadOfAFile) {
    const std::string chunk = std::string((std::size_t{1} << 16U) - 2, 'x') + "\r\n";
    std::string largest;
    while (largest.size() < OutputDocument::LargestFile)
        largest += chunk;
    ListDesk desk;
    desk.window.OutputFileName("/x/f.txt", false);
    const auto show = [&](const std::string& bytes) {
        desk.desktop.pointer.Busy = true;
        desk.desktop.files.Contents["/x/f.txt"] = bytes;
        desk.window.ShowModal();
        EXPECT_EQ(desk.desktop.files.Open, 0);
        return desk.desktop.messages.Take();
    };
    EXPECT_EQ(show("caf\xE9\rb\nb\r\n\r\nlast"), "");
    EXPECT_EQ(desk.window.Text, "café\r\nb\nb\r\n\r\nlast\r\n");
    EXPECT_EQ(show(largest), "");
    EXPECT_FALSE(desk.desktop.pointer.Busy);
    EXPECT_EQ(show(largest + "more"),
              Report("The file /x/f.txt is too large to be shown as a whole", 20012, "OutputFrm"));
    EXPECT_TRUE(desk.desktop.pointer.Busy);
    EXPECT_EQ(desk.window.Text.size(), OutputDocument::LargestFile);
    desk.desktop.files.ReadableBytes = chunk.size() - 1;
    EXPECT_EQ(show(chunk + "more"), Report("cannot read", 5, "MemoryFiles"));
    EXPECT_EQ(desk.window.Text, chunk) << "a line that was read is shown";
}

} // namespace
} // namespace orvane
