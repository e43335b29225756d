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

TEST_F(AboutBox, ClipsNoTextAndNamesItsControls) {
    Open([](QDialog& window) {
        ExpectNothingClippedOrUnnamed(window);
        EXPECT_EQ(TabStops(window), (Texts{"cmdOK", "cmdSysInfo"}));
        EXPECT_EQ(Find<QLabel>(window, "picIcon").pixmap().size(), QSize(32, 32));
        window.close();
    });
}

TEST_F(AboutBox, ClosesAtOKAndEscape) {
    Open([](QDialog&) { Press(Qt::Key_Return); });
    Open([](QDialog&) { Press(Qt::Key_Escape); });
}

TEST_F(AboutBox, StartsTheSystemInformationByEnter) {
    Open([this](QDialog& window) {
        Press(Qt::Key_Tab);
        Press(Qt::Key_Return);
        EXPECT_EQ(Message(), "System Information Is Unavailable At This Time");
        EXPECT_TRUE(window.isVisible());
        window.close();
    });
}

} // namespace
} // namespace orvane
