#include "platform/failure_report.h"

#include "platform/text.h"

#include <new>

namespace orvane {

void ReportError(const Failure& failure, MessageBox& messages) {
    std::string text = "Error Description: " + failure.Description;
    text.append(LineEnd).append("Error Number: " + std::to_string(failure.Number));
    text.append(LineEnd).append("Error Source: " + failure.Source);
    messages.Show(text);
}

Failure CurrentFailure() {
    // The texts for std::bad_alloc are short enough for std::string to store them without allocating memory.
    try {
        throw;
    } catch (const Failure& failure) {
        return failure;
    } catch (const std::bad_alloc&) {
        return {"Out of memory", failure_number::OutOfMemory, "memory"};
    } catch (const std::exception& unexpected) {
        return {unexpected.what(), failure_number::Unexpected, "the program"};
    } catch (...) {
        return {"An unknown failure", failure_number::Unexpected, "the program"};
    }
}

} // namespace orvane
