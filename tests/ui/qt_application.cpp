// Widgets, fonts and pictures need an application; here is the one of all tests of this folder.
#include <gtest/gtest.h>

#include <QApplication>
#include <memory>

namespace zephyne::test {
namespace {

class Application : public testing::Environment {
    void SetUp() override {
        if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
        static int argc = 1;
        static char name[] = "ui_tests";
        static char* argv[] = {name, nullptr};
        application_ = std::make_unique<QApplication>(argc, argv);
    }
    void TearDown() override { application_.reset(); }

    std::unique_ptr<QApplication> application_;
};

[[maybe_unused]] const auto* const application = testing::AddGlobalTestEnvironment(new Application);

}  // namespace
}  // namespace zephyne::test
