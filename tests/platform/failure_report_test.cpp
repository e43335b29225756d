#include "platform/failure_report.h"

#include "fakes/desktop.h"

namespace orvane {
namespace {

using namespace fakes;

TEST(FailurePath, ReportsWhateverIsThrownOnceAndGoesOn) {
    const auto cancelled = [] { throw Failure("Cancel", failure_number::Cancelled, "a prompt"); };
    const auto report = [](const char* description, const char* number, const char* source) {
        return Texts{std::string("Error Description: ") + description + "\r\nError Number: " + number +
                     "\r\nError Source: " + source};
    };
    const struct {
        const char* thrown;
        std::function<void()> body;
        bool quietCancel;
        Texts messages;
    } rows[] = {
        {"a cancel that ends quietly", cancelled, true, {}},
        {"a cancel", cancelled, false, report("Cancel", "32755", "a prompt")},
        {"a failure without texts", [] { throw Failure("", -7, ""); }, true, report("", "-7", "")},
        {"bad_alloc", [] { throw std::bad_alloc(); }, false, report("Out of memory", "20010", "memory")},
        {"logic_error", [] { throw std::logic_error("odd"); }, true, report("odd", "20099", "the program")},
        {"a number", [] { throw 1; }, false, report("An unknown failure", "20099", "the program")},
    };
    for (const auto& row : rows) {
        ScriptedMessageBox messages;
        WithFailurePath(messages, row.quietCancel, row.body);
        EXPECT_EQ(messages.TakeAll(), row.messages) << row.thrown;
    }
}

} // namespace
} // namespace orvane
