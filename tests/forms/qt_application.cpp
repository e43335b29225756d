// The application object is there before the first test of a window begins.

#include "fakes/qt_application.h"

#include <gtest/gtest.h>

namespace {

class QtApplication : public testing::Environment {
  public:
    void SetUp() override { orvane::TestApplication(); }
};

const testing::Environment* const environment = testing::AddGlobalTestEnvironment(new QtApplication);

} // namespace
