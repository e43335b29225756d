#include "forms/about_form.h"

#include "windows.h"

namespace orvane {
namespace {

struct AboutBox : WindowTest {
    void Open(const std::function<void(QDialog&)>& script) {
        WhileOpen([this] { ShowAboutForm(desktop.platform, owner); }, script);
    }
    QWidget owner;
};

TEST_F(AboutBox, StartsTheSystemInformationByEnterAndClosesAtEscape) {
    Open([this](QDialog& window) {
        ExpectNothingClippedOrUnnamed(window);
        EXPECT_EQ(window.windowTitle(), "About Orvane Software");
        EXPECT_EQ(Find<QLabel>(window, "picIcon").pixmap().size(), QSize(32, 32));
        EXPECT_EQ(TabStops(window), (Texts{"cmdOK", "cmdSysInfo"}));
        Press(Qt::Key_Tab);
        Press(Qt::Key_Return);
        EXPECT_EQ(Message(), "System Information Is Unavailable At This Time");
        EXPECT_TRUE(window.isVisible());
        Press(Qt::Key_Escape);
    });
}

TEST_F(AboutBox, ClosesAtOK) {
    Open([](QDialog&) { Press(Qt::Key_Return); });
}

} // namespace
} // namespace orvane
