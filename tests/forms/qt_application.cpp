// The one application object of the window tests.

#include <gtest/gtest.h>

#include <QApplication>

#include <array>
#include <memory>

namespace {

class QtApplication : public testing::Environment {
  public:
    void SetUp() override {
        if (qApp == nullptr)
            application_ = std::make_unique<QApplication>(count_, arguments_.data());
    }
    void TearDown() override { application_.reset(); }

  private:
    int count_ = 1;
    std::array<char, 12> name_{"forms_tests"};
    std::array<char*, 2> arguments_{name_.data(), nullptr};
    std::unique_ptr<QApplication> application_;
};

const testing::Environment* const environment = testing::AddGlobalTestEnvironment(new QtApplication);

} // namespace
