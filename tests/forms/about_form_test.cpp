#include "forms/about_form.h"

#include "fakes/desktop.h"
#include "window_driver.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QPushButton>

#include <string>

namespace orvane {
namespace {

using namespace fakes;

class AboutFormTest : public testing::Test {
  protected:
    FakeDesktop desktop;
    QWidget owner;
    AboutForm form{desktop.platform, &owner};
};

TEST_F(AboutFormTest, TellsWhatTheProgramIsInPlacesThatHoldIt) {
    WhileOpen(form, [](QDialog& window) {
        EXPECT_EQ(window.windowTitle(), "About Orvane Software");
        EXPECT_EQ(Find<QLabel>(window, "lblTitle").text(), "Orvane Software");
        EXPECT_EQ(Find<QLabel>(window, "lblVersion").text(), "Version 1.0.0");
        EXPECT_EQ(Find<QLabel>(window, "picIcon").pixmap().size(), QSize(32, 32));
        EXPECT_EQ(window.size(), QSize(382, 249));
        EXPECT_EQ(window.minimumSize(), window.maximumSize());
        EXPECT_EQ(window.pos(), QPoint(156, 129));
        EXPECT_FALSE(window.windowFlags() & Qt::WindowMinMaxButtonsHint);
        EXPECT_TRUE(window.isModal());
        for (const std::string name : {"lblDescription", "lblDisclaimer", "lblTitle", "lblVersion"}) {
            const auto& label = Find<QLabel>(window, name);
            EXPECT_FALSE(label.text().isEmpty()) << name;
            EXPECT_LE(label.heightForWidth(label.width()), label.height()) << name;
            EXPECT_TRUE(window.rect().contains(label.geometry())) << name;
        }
        const auto& button = Find<QPushButton>(window, "cmdSysInfo");
        EXPECT_GE(button.width(), button.sizeHint().width());
        EXPECT_EQ(Focused(window), "cmdOK");
        Click(window, "cmdOK");
    });
}

TEST_F(AboutFormTest, KeysReachTheButtons) {
    WhileOpen(form, [](QDialog& /*window*/) { Press(Qt::Key_Escape); });
    WhileOpen(form, [&](QDialog& window) {
        Find<QPushButton>(window, "cmdOK").setFocus();
        Press(Qt::Key_Tab);
        EXPECT_EQ(Focused(window), "cmdSysInfo");
        Press(Qt::Key_Return);
        EXPECT_EQ(desktop.messages.Take(), "System Information Is Unavailable At This Time");
        bool shown = false;
        desktop.messages.WhileShown = [&] { shown = true; };
        Press(Qt::Key_S, Qt::AltModifier);
        EXPECT_TRUE(QTest::qWaitFor([&] { return shown; }));
        EXPECT_EQ(desktop.messages.Take(), "System Information Is Unavailable At This Time");
        EXPECT_TRUE(window.isVisible());
        Press(Qt::Key_Tab);
        Press(Qt::Key_Return);
    });
}

} // namespace
} // namespace orvane
