// One application object for all tests of this program.
#include <gtest/gtest.h>

#include <memory>

#include "../../platform/qt/application.h"

namespace {

class ApplicationEnvironment : public testing::Environment {
 public:
  void SetUp() override {
    application_ = std::make_unique<QApplication>(count_, arguments_);
    platform::qt::SetLook();
  }
  void TearDown() override { application_.reset(); }

 private:
  int count_ = 1;
  char name_[9] = "qt_tests";
  char* arguments_[2] = {name_, nullptr};
  std::unique_ptr<QApplication> application_;
};

const auto* const kEnvironment = testing::AddGlobalTestEnvironment(new ApplicationEnvironment);

}  // namespace
