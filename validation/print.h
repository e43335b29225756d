// Printing of the page to PDF.
#pragma once

#include <filesystem>
#include <string>

namespace orvane::validation {

/// Prints `page` to PDF with Chromium, which uses the folder `work`, and returns the PDF. Throws CannotRun if
/// Chromium is not installed, and std::runtime_error if the PDF is not complete.
std::string PrintedPage(const std::string& page, const std::filesystem::path& work);

/// The number of pages of a PDF that Chromium wrote; 0 if `pdf` is not a PDF.
int PagesOf(const std::string& pdf);

} // namespace orvane::validation
