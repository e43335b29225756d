#include "validation/wrong_lists.h"

#include <functional>
#include <stdexcept>

namespace orvane::validation {

namespace {

std::string Ruled(std::size_t length) {
    return std::string(length, '=') + "\r\n";
}

std::string TextBytes() {
    return "001: Group 1        003: Group 2        005: Group 2\r\n"
           "002: Group 2        004: Group 1        006: Group 1\r\n" +
           Ruled(55) +
           "007: Group 2        009: Group 1         \r\n"
           "008: Group 1        010: Group 2         \r\n" +
           Ruled(55);
}

std::string WindowBytes() {
    return "001: Group 1        003: Group 2        005: Group 2\r\n"
           "002: Group 2        004: Group 1        006: Group 1\r\n" +
           Ruled(39) +
           "007: Group 2        009: Group 1           \r\n"
           "008: Group 1        010: Group 2           \r\n" +
           Ruled(39);
}

std::string ClipboardBytes() {
    return "001: Group 1        003: Group 2        005: Group 2        \r\n"
           "002: Group 2        004: Group 1        006: Group 1        \r\n" +
           Ruled(55) +
           "007: Group 2        009: Group 1                          \r\n"
           "008: Group 1        010: Group 2                          \r\n" +
           Ruled(55);
}

std::string PageBytes() {
    std::string page;
    for (const char* line :
         {"<html><head><title>Random Sequence</title></head><body style='font-family:Arial'>",
          "<table border='1' cellspacing='2' width='100%' nowrap=1><tr>",
          "<td>001: <b>Group 1</b></td>",
          "<td>003: <b>Group 2</b></td>",
          "<td>005: <b>Group 2</b></td>",
          "</tr><tr>",
          "<td>002: <b>Group 2</b></td>",
          "<td>004: <b>Group 1</b></td>",
          "<td>006: <b>Group 1</b></td>",
          "</tr></table>",
          "<hr>",
          "<table border='1' cellspacing='2' width='100%' nowrap=1><tr>",
          "<td>007: <b>Group 2</b></td>",
          "<td>009: <b>Group 1</b></td>",
          "<td>&nbsp;</td>",
          "</tr><tr>",
          "<td>008: <b>Group 1</b></td>",
          "<td>010: <b>Group 2</b></td>",
          "<td>&nbsp;</td>",
          "</tr></table>",
          "<hr>",
          "</body></html>"})
        page += std::string(line) + "\r\n";
    return page;
}

std::string BytesOf(Form form) {
    switch (form) {
    case Form::TextFile:
        return TextBytes();
    case Form::WebPage:
        return PageBytes();
    case Form::Window:
        return WindowBytes();
    default:
        return ClipboardBytes();
    }
}

std::string WithoutReturns(std::string text) {
    std::erase(text, '\r');
    return text;
}

void Replace(std::string& text, const std::string& from, const std::string& to) {
    const std::size_t at = text.find(from);
    if (at == std::string::npos)
        throw std::logic_error("no \"" + from + "\" to be replaced");
    text.replace(at, from.size(), to);
}

void Exchange(std::string& text, const std::string& one, const std::string& other) {
    const std::string between = "(exchanged)";
    Replace(text, one, between);
    Replace(text, other, one);
    Replace(text, between, other);
}

using Change = std::function<void(MadeList&)>;

WrongList Wrong(const std::string& what, const std::string& check, Form form, const Change& change) {
    WrongList wrong{what, check, RightList(form)};
    change(wrong.List);
    ReadBack(wrong.List);
    return wrong;
}

Change Replaced(const std::string& from, const std::string& to) {
    return [=](MadeList& list) { Replace(list.Bytes, from, to); };
}

Change UnderOption(BlockOption option) {
    return [=](MadeList& list) {
        list.Setup.Blocks = option;
        list.Setup.EqualSize = 6;
    };
}

/// Cuts out the text from the line that starts with `first` to the end of `last`.
Change Without(const std::string& first, const std::string& last) {
    return [=](MadeList& list) {
        const std::size_t from = list.Bytes.find(first);
        const std::size_t end = list.Bytes.find(last, from) + last.size();
        list.Bytes.erase(from, end - from);
    };
}

void AddAssignmentFaults(std::vector<WrongList>& wrong) {
    wrong.push_back(Wrong("the groups of two subjects of different blocks exchanged", "ASG-1.10",
                          Form::TextFile, [](MadeList& list) {
                              Replace(list.Bytes, "006: Group 1", "006: Group 2");
                              Replace(list.Bytes, "007: Group 2", "007: Group 1");
                          }));
    wrong.push_back(Wrong("one subject of a block in the other group", "ASG-1.10", Form::WebPage,
                          Replaced("003: <b>Group 2", "003: <b>Group 1")));
    WrongList rest{"the second group of a single block has one subject more", "ASG-2.10", RightRestList()};
    Replace(rest.List.Bytes, "001: Group 1", "001: Group 2");
    ReadBack(rest.List);
    wrong.push_back(rest);
}

void AddBlockFaults(std::vector<WrongList>& wrong) {
    wrong.push_back(
        Wrong("two blocks where one was chosen", "BLK-1.10", Form::TextFile, UnderOption(BlockOption::One)));
    wrong.push_back(Wrong("a block of 4 where 6 was chosen", "BLK-2.10", Form::TextFile,
                          UnderOption(BlockOption::Equal)));
    wrong.push_back(Wrong("the last block missing", "BLK-3.10", Form::TextFile, Without("007", Ruled(55))));
    wrong.push_back(Wrong("a block without its last row", "BLK-3.10", Form::TextFile, Without("008", "\n")));
    wrong.push_back(Wrong("one block too many", "BLK-3.10", Form::TextFile,
                          [](MadeList& list) { list.Bytes += TextBytes().substr(TextBytes().find("007")); }));
    wrong.push_back(Wrong("a block that is too large for random sizes", "BLK-4.10", Form::TextFile,
                          UnderOption(BlockOption::RandomSizes)));
    wrong.push_back(Wrong("a block without its last subject", "BLK-7.10", Form::WebPage,
                          Replaced("<td>010: <b>Group 2</b></td>", "<td>&nbsp;</td>")));
}

void AddCodeFaults(std::vector<WrongList>& wrong) {
    wrong.push_back(Wrong("a code used twice", "COD-1.10", Form::Clipboard, Replaced("009", "002")));
    wrong.push_back(Wrong("a letter in a code of digits", "COD-2.10", Form::Window, Replaced("005", "00S")));
    wrong.push_back(Wrong("two cells exchanged", "COD-3.10", Form::TextFile,
                          [](MadeList& list) { Exchange(list.Bytes, "002: Group 2", "006: Group 1"); }));
    wrong.push_back(Wrong("a number left out", "COD-3.10", Form::WebPage, Replaced("010", "011")));
}

void AddRunsTestFaults(std::vector<WrongList>& wrong) {
    wrong.push_back(Wrong("a block in the order 1 1 1 2 2 2", "RUN-2.10", Form::TextFile, [](MadeList& list) {
        Replace(list.Bytes, "002: Group 2", "002: Group 1");
        Replace(list.Bytes, "003: Group 2", "003: Group 1");
        Replace(list.Bytes, "004: Group 1", "004: Group 2");
        Replace(list.Bytes, "006: Group 1", "006: Group 2");
    }));
    wrong.push_back(Wrong("the largest P value shown with a wrong last digit", "RUN-4.10", Form::TextFile,
                          [](MadeList& list) { Replace(list.RunsMessage, "0.3989", "0.3988"); }));
    wrong.push_back(Wrong("no P value told", "RUN-4.10", Form::TextFile,
                          [](MadeList& list) { list.RunsMessage.clear(); }));
}

void AddLayoutFaults(std::vector<WrongList>& wrong, Form form, const std::string& check) {
    wrong.push_back(Wrong("lines that end in LF alone", check, form,
                          [](MadeList& list) { list.Bytes = WithoutReturns(list.Bytes); }));
    wrong.push_back(
        Wrong("an empty line at the end", check, form, [](MadeList& list) { list.Bytes += "\r\n"; }));
    wrong.push_back(Wrong("an end in the middle of a cell", check, form,
                          [](MadeList& list) { list.Bytes.resize(list.Bytes.find("009")); }));
    if (form == Form::WebPage)
        wrong.push_back(
            Wrong("a border that was not chosen", check, form, Replaced("border='1'", "border='0'")));
    else
        wrong.push_back(Wrong("a ruled line that is too long", check, form, Replaced("==", "===")));
    wrong.push_back(Wrong("a space too many", check, form, Replaced("Group 1", " Group 1")));
}

void AddWindowFaults(std::vector<WrongList>& wrong) {
    wrong.push_back(Wrong("a window that shows a list different from the saved one", "REP-3.10", Form::Window,
                          [](MadeList& list) { Exchange(list.Window->Text, "Group 1", "Group 2"); }));
    wrong.push_back(Wrong(
        "a blank cell in front of a subject", "REP-5.10", Form::Clipboard,
        Replaced("008: Group 1        010: Group 2" + std::string(8 + 18, ' '),
                 "008: Group 1        " + std::string(18, ' ') + "010: Group 2" + std::string(8, ' '))));
    wrong.push_back(Wrong("a temporary file that everyone can read", "CON-4.10", Form::Window,
                          [](MadeList& list) { list.Window->TemporaryFiles = {"rw-r--r--"}; }));
    wrong.push_back(Wrong("a temporary file that is not deleted", "CON-4.10", Form::Window,
                          [](MadeList& list) { list.Window->LeftBehind = {"ABCD1234.tmp"}; }));
    wrong.push_back(Wrong("a finished file that is not opened", "USE-2.10", Form::TextFile,
                          [](MadeList& list) { list.Viewer.clear(); }));
    wrong.push_back(Wrong("a viewer that is given another file", "USE-2.10", Form::WebPage,
                          [](MadeList& list) { list.Viewer.back() = "other.htm"; }));
}

} // namespace

MadeList RightList(Form form) {
    MadeList list;
    list.Setup.Output = form;
    list.Setup.Blocks = BlockOption::Listed;
    list.Setup.ListedSizes = {4, 6};
    list.Setup.SampleSize = 10;
    list.Setup.Columns = 3;
    list.Setup.Border = true;
    list.Setup.Spacing = 2;
    list.Setup.Level = "0.2";
    list.Bytes = BytesOf(form);
    list.RunsMessage = "Runs test:\nMinimum P value = 0.263\nMaximum P value = 0.3989";
    list.File = form == Form::WebPage ? "list.htm" : "list.txt";
    list.Viewer = {form == Form::WebPage ? "browser" : "reader", list.File};
    if (form == Form::Window)
        list.Window = WindowSeen{WithoutReturns(list.Bytes), {"rw-------"}, {}};
    ReadBack(list);
    return list;
}

MadeList RightRestList() {
    MadeList list;
    list.Setup.SampleSize = 3;
    list.Setup.Columns = 1;
    list.Bytes = "001: Group 1\r\n002: Group 2\r\n003: Group 1\r\n" + Ruled(20);
    list.File = "list.txt";
    list.Viewer = {"reader", list.File};
    ReadBack(list);
    return list;
}

MadeList RightEvenList(BlockOption option) {
    MadeList list;
    list.Setup.Blocks = option;
    list.Setup.EqualSize = 4;
    list.Setup.SampleSize = 10;
    list.Setup.Columns = 1;
    list.Bytes = "001: Group 1\r\n002: Group 2\r\n003: Group 2\r\n004: Group 1\r\n" + Ruled(20) +
                 "005: Group 2\r\n006: Group 2\r\n007: Group 1\r\n008: Group 1\r\n" + Ruled(20) +
                 "009: Group 1\r\n010: Group 2\r\n011: Group 1\r\n012: Group 2\r\n" + Ruled(20);
    list.File = "list.txt";
    list.Viewer = {"reader", list.File};
    ReadBack(list);
    return list;
}

std::vector<WrongList> WrongLists() {
    std::vector<WrongList> wrong;
    AddAssignmentFaults(wrong);
    AddBlockFaults(wrong);
    AddCodeFaults(wrong);
    AddRunsTestFaults(wrong);
    AddLayoutFaults(wrong, Form::TextFile, "REP-1.10");
    AddLayoutFaults(wrong, Form::WebPage, "REP-2.10");
    AddLayoutFaults(wrong, Form::Window, "REP-3.10");
    AddLayoutFaults(wrong, Form::Clipboard, "REP-4.10");
    AddWindowFaults(wrong);
    return wrong;
}

std::vector<MadeList> ListsWithOneByteChanged(Form form) {
    std::vector<MadeList> lists;
    const MadeList right = RightList(form);
    for (std::size_t at = 0; at < right.Bytes.size(); ++at) {
        MadeList changed = right;
        changed.Bytes[at] = static_cast<char>(changed.Bytes[at] + 1);
        ReadBack(changed);
        lists.push_back(std::move(changed));
    }
    return lists;
}

} // namespace orvane::validation
