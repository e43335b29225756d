#include "platform/failure_report.h"

#include "fakes/desktop.h"

namespace orvane {
namespace {

using namespace fakes;

TEST(FailurePath, ReportsWhateverIsThrownOnceAndGoesOn) {
    const struct {
        const char* thrown;
        std::function<void()> body;
        Texts messages;
    } rows[] = {
        {"a cancel", [] { throw Failure("Cancel", 32755, "a prompt"); }, {}},
        {"a failure without texts", [] { throw Failure("", -7, ""); }, {Report("", -7, "")}},
        {"bad_alloc", [] { throw std::bad_alloc(); }, {Report("Out of memory", 20010, "memory")}},
        {"logic_error", [] { throw std::logic_error("odd"); }, {Report("odd", 20099, "the program")}},
        {"a number", [] { throw 1; }, {Report("An unknown failure", 20099, "the program")}},
    };
    for (const auto& row : rows) {
        ScriptedMessageBox messages;
        WithFailurePath(messages, row.body);
        EXPECT_EQ(messages.TakeAll(), row.messages) << row.thrown;
    }
}

} // namespace
} // namespace orvane
