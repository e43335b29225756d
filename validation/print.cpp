#include "validation/print.h"

#include "validation/other_program.h"
#include "validation/output_folder.h"
#include "validation/record.h"

#include <stdexcept>

namespace orvane::validation {
namespace {

/// The name of the first browser that can be started; empty if none can.
std::string Browser() {
    for (const char* name : {"chromium", "chromium-browser", "google-chrome"})
        if (Ask({name, "--version"}).ExitCode == 0)
            return name;
    return "";
}

} // namespace

std::string PrintedPage(const std::string& page, const std::filesystem::path& work) {
    const std::string browser = Browser();
    if (browser.empty())
        throw CannotRun("Chromium is not installed on this machine.");
    const std::filesystem::path html = work / "record.htm";
    const std::filesystem::path pdf = work / "record.pdf";
    std::filesystem::remove(pdf);
    WriteWhole(html, page);
    // The browser's sandbox does not work for root and is not needed: the page comes from this program.
    const ProgramAnswer answer =
        Ask({browser, "--headless", "--no-sandbox", "--disable-gpu", "--no-pdf-header-footer",
             "--generate-pdf-document-outline", "--user-data-dir=" + (work / "profile").string(),
             "--print-to-pdf=" + pdf.string(), "file://" + html.string()},
            120);
    if (!std::filesystem::exists(pdf))
        throw std::runtime_error("Chromium did not print the record (exit code " +
                                 std::to_string(answer.ExitCode) + ").");
    std::string printed = ReadWhole(pdf);
    if (PagesOf(printed) == 0)
        throw std::runtime_error("Chromium did not finish the PDF.");
    return printed;
}

int PagesOf(const std::string& pdf) {
    if (pdf.compare(0, 5, "%PDF-") != 0 ||
        pdf.find("%%EOF", pdf.size() < 64 ? 0 : pdf.size() - 64) == std::string::npos)
        return 0;
    int pages = 0;
    const std::string mark = "/Type /Page";
    for (std::size_t at = pdf.find(mark); at != std::string::npos; at = pdf.find(mark, at + mark.size()))
        pages += at + mark.size() < pdf.size() && pdf[at + mark.size()] != 's' ? 1 : 0;
    return pages;
}

} // namespace orvane::validation
