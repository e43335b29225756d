// Chromium, without a window, opens the pages that a user's browser opens.
#include "engine/numbers.h"
#include "fakes/desktop.h"
#include "fakes/temporary_folder.h"
#include "output/html_report.h"
#include "tour/child.h"
#include "tour/files.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

namespace orvane {

namespace {

using Lines = std::vector<std::string>;

/// Runs the browser on `page` and returns what it dumps; its log goes to the file `log`.
std::string Browse(const std::string& home, const std::string& page, const std::string& log) {
    return tour::OutputOf({CHROMIUM, "--headless", "--no-sandbox", "--disable-gpu", "--disable-dev-shm-usage",
                           "--disable-background-networking", "--disable-component-update", "--disable-sync",
                           "--no-first-run", "--enable-logging=stderr", "--v=0",
                           "--virtual-time-budget=20000", "--user-data-dir=" + home + "/profile",
                           "--dump-dom", "file://" + page},
                          {"PATH=/usr/bin:/bin", "HOME=" + home}, log);
}

Lines Split(const std::string& text) {
    Lines lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);)
        lines.push_back(line);
    return lines;
}

/// What the browser says of a page: its title, its faults, the cells of its tables, and as a fault each
/// message that reached the console.
Lines Inspect(const std::string& page) {
    const fakes::TemporaryFolder folder;
    const std::string log = folder.Path("log");
    folder.Put("page.htm", page + "<script>" + tour::ReadFile(INSPECTION) + "</script>");
    const std::string frame = folder.Put(
        "frame.htm", "<!DOCTYPE html><meta charset='utf-8'><script>addEventListener('message', (e) =>"
                     "{ document.querySelector('pre').textContent = e.data; });</script>"
                     "<iframe src='page.htm' width='360' height='640' style='border:0'></iframe><pre></pre>");
    const std::string dump = Browse(folder.Path(), frame, log);
    const std::string start = "<pre>";
    const std::size_t from = dump.find(start);
    if (from == std::string::npos)
        return {"no report: " + dump};
    const std::size_t begin = from + start.size();
    Lines said = Split(dump.substr(begin, dump.find("</pre>", begin) - begin));
    for (const std::string& line : Split(folder.Get("log")))
        if (line.find("CONSOLE") != std::string::npos)
            said.push_back("fault: " + line.substr(line.find('"')));
    return said;
}

Lines FaultsOf(const Lines& said) {
    Lines faults;
    std::copy_if(said.begin(), said.end(), std::back_inserter(faults),
                 [](const std::string& line) { return line.starts_with("fault: "); });
    return faults;
}

/// A list in three columns, each block as it was dealt.
std::string ListPage(const std::vector<std::string>& names, const std::vector<std::int16_t>& blockSizes) {
    fakes::FakeDesktop desktop;
    fakes::MemoryGrid grid(names);
    ListSettings settings;
    settings.NumberOfGroups = static_cast<std::int16_t>(names.size());
    settings.Columns = 3;
    ListResults results;
    results.BlockSizes = blockSizes;
    for (char c = 'A'; results.CodeArr.size() < static_cast<std::size_t>(SumArr(blockSizes)); ++c)
        results.CodeArr.emplace_back(1, c);
    SequenceBuilder builder(settings, results, grid, desktop.random, desktop.clock, desktop.messages);
    GenerateHtm({settings, results, grid, builder, desktop.platform}, "/list.htm");
    return desktop.files.Contents["/list.htm"];
}

TEST(PagesTest, TheListIsReadDownTheColumns) {
    const Lines expected = {"title: Random Sequence",
                            "table",
                            "cell: A: Caf\u00E9 5 mg",
                            "cell: B: \u2265 10 mg",
                            "cell: C: Caf\u00E9 5 mg",
                            "cell: D: \u2265 10 mg",
                            "cell: E: Caf\u00E9 5 mg",
                            "cell: F: \u2265 10 mg",
                            "table",
                            "cell: G: Caf\u00E9 5 mg",
                            "cell: H: \u2265 10 mg",
                            "cell: I: Caf\u00E9 5 mg",
                            "cell: J: \u2265 10 mg",
                            "cell:",
                            "cell:"};
    EXPECT_EQ(Inspect(ListPage({"Caf\u00E9 5 mg", "\u2265 10 mg"}, {0, 6, 4})), expected);
}

TEST(PagesTest, TheHelpPageStandsAloneAndFitsANarrowWindow) {
    const Lines said = Inspect(tour::ReadFile(HELP_PAGE));
    EXPECT_EQ(said.at(0), "title: Randomization lists - help");
    EXPECT_EQ(FaultsOf(said), Lines{});
    const fakes::TemporaryFolder folder;
    tour::OutputOf({"tidy", "-quiet", "-errors", HELP_PAGE}, {"PATH=/usr/bin:/bin"}, folder.Path("log"));
    EXPECT_EQ(folder.Get("log"), "") << "no valid page";
}

// The inspection itself finds what the tests above rely on it to find.
TEST(PagesTest, FaultsAreFound) {
    const Lines faults = FaultsOf(Inspect(
        "<!DOCTYPE html><title>x</title><style>b { background: url(b.png) }</style>"
        "<h2 id='a'>A</h2><p id='a' style='width:400px'><a href='#b'>b</a><img src='file:///none.png'>"
        "<h3>C</h3><script>nosuch();</script>"));
    const std::array<std::string, 8> expected = {"no target for #b",
                                                 "reaches outside: file:///none.png",
                                                 "a style reaches outside",
                                                 "id used twice: a",
                                                 "no anchor: C",
                                                 "not in the contents: A",
                                                 "pixels wide in ",
                                                 "nosuch"};
    for (const std::string& fault : expected)
        EXPECT_TRUE(std::any_of(faults.begin(), faults.end(), [&](const std::string& line) {
            return line.find(fault) != line.npos;
        })) << fault;
}

} // namespace

} // namespace orvane
