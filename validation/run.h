// One validation: what was examined, on which machine and with which libraries, and its record.
#pragma once

#include "validation/lists/session.h"
#include "validation/record.h"

#include <QByteArray>

#include <filesystem>
#include <string>
#include <vector>

namespace orvane::validation {

/// One validation: what was examined, and how.
struct Run {
    std::string Version; ///< that the program shows in its About box
    std::string Started; ///< date and time of the validation
    std::vector<Row> Facts;
    std::vector<Row> Files;  ///< the delivered ones: name, bytes, SHA-256
    std::vector<Row> Mapped; ///< files that the running program has mapped: name, folder, SHA-256
    std::string Checksum;    ///< SHA-256 of the file SHA256SUMS, which lists the evidence
};

/// Starts the program, asks for its version, and makes a list, so that everything it loads is loaded.
/// `commit` is that of the sources, and belongs to the program only if it was built from them.
Run Identify(const std::filesystem::path& folder, Session& session, const std::string& commit);

/// Name, bytes and SHA-256 of each file in a folder and those below it.
std::vector<Row> FilesBelow(const std::filesystem::path& folder);

/// The SHA-256 of a file in hexadecimal digits. Throws std::runtime_error.
std::string Sha256(const std::filesystem::path& file);

/// "Conclusion: PASSED" or "Conclusion: FAILED", and what failed, a line each: only one line if all has
/// passed. A requirement without a check fails.
std::vector<std::string> Conclusion(const Record& record);

/// The whole record as a PDF on A4.
/// Requires: a QGuiApplication.
QByteArray RecordPdf(const Record& record, const Run& run);

/// Conclusion and checks as JSON.
QByteArray RecordJson(const Record& record, const Run& run);

} // namespace orvane::validation
