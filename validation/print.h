// The page on paper.
#pragma once

#include <filesystem>
#include <string>

namespace orvane::validation {

/// `page` printed to PDF by the browser of this machine, which works in the folder `work`. Throws CannotRun
/// when there is no such browser, and std::runtime_error when it gives no whole PDF.
std::string PrintedPage(const std::string& page, const std::filesystem::path& work);

/// The pages of a PDF as Chromium writes it; 0 when it is none.
int PagesOf(const std::string& pdf);

} // namespace orvane::validation
