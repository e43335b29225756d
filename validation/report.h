// The record as a document to be printed and filed, and for other programs.
#pragma once

#include "validation/identity.h"
#include "validation/record.h"

#include <QByteArray>

#include <string>
#include <vector>

namespace orvane::validation {

/// "Conclusion: PASSED" or "Conclusion: FAILED", and what failed, a line each: only one line if all has
/// passed. A requirement without a check fails.
std::vector<std::string> Conclusion(const Record& record);

/// The whole record as a PDF on A4.
/// Requires: a QGuiApplication.
QByteArray RecordPdf(const Record& record, const Run& run);

/// Conclusion and checks as JSON.
QByteArray RecordJson(const Record& record, const Run& run);

} // namespace orvane::validation
