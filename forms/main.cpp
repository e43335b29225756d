#include "engine/random_source.h"
#include "forms/application_icon.h"
#include "forms/event_guard.h"
#include "forms/main_form.h"
#include "platform/linux/code_page_iconv.h"
#include "platform/linux/end_signals.h"
#include "platform/linux/gio_shell.h"
#include "platform/linux/linux_clock.h"
#include "platform/linux/linux_entropy.h"
#include "platform/linux/linux_files.h"
#include "platform/linux/linux_registry.h"
#include "platform/linux/program_directory.h"
#include "platform/qt/qt_clipboard.h"
#include "platform/qt/qt_common_dialog.h"
#include "platform/qt/qt_ending.h"
#include "platform/qt/qt_focus_mark.h"
#include "platform/qt/qt_input_drain.h"
#include "platform/qt/qt_message_box.h"
#include "platform/qt/qt_mouse_pointer.h"
#include "platform/qt/qt_second_press.h"

#include <QApplication>
#include <QDir>

namespace {

using namespace orvane;

/// The application object of the toolkit, and the services that need it.
class Application : public QApplication {
  public:
    Application(int& count, char** arguments) : QApplication(count, arguments) {
        setApplicationName("orvane");
        setOrganizationName("Orvane Software");
        setDesktopFileName("orvane");
        setWindowIcon(ApplicationIcon());
        setQuitOnLastWindowClosed(true);
        ending_.BeginAt(signals_.Descriptor());
    }

    /// Reports an exception that no guard of a window has caught.
    bool notify(QObject* receiver, QEvent* event) override {
        try {
            return QApplication::notify(receiver, event);
        } catch (...) {
            guard_.ReportCaught();
            return false;
        }
    }

    QtEnding& Ending() { return ending_; }
    QtInputDrain& Input() { return input_; }
    MessageBox& Messages() { return messages_; }
    MousePointer& Pointer() { return pointer_; }

  private:
    EndSignals signals_;
    QtEnding ending_;
    QtSecondPress secondPress_;
    QtFocusMark focusMark_;
    QtInputDrain input_;
    QtMessageBox messages_{input_, ending_};
    QtMousePointer pointer_{input_};
    EventGuard guard_{messages_, pointer_};
};

} // namespace

int main() {
    // The command line is not passed on: the program has no options, and the toolkit would read its own.
    char name[] = "orvane";
    char* arguments[] = {name, nullptr};
    int count = 1;
    Application application(count, arguments);
    LinuxFiles files;
    const CodePage page = DesktopCodePage();
    LinuxClock clock;
    LinuxEntropy entropy;
    RandomSource random(entropy);
    GioShell shell;
    QtClipboard board(page);
    LinuxRegistry keys;
    Platform desktop{
        application.Messages(), application.Pointer(),       files, page, clock, random, shell, board, keys,
        ProgramDirectory(),     QDir::separator().toLatin1()};
    PromptFolder folder;
    QtCommonDialog CMDialog(folder, application.Input(), application.Ending());
    QtCommonDialog outputDialog(folder, application.Input(), application.Ending());
    MainForm form(desktop, CMDialog, outputDialog);
    // Runs inside the event loop, so that the loop ends even if the window is closed during Open.
    QMetaObject::invokeMethod(&form, &MainForm::Open, Qt::QueuedConnection);
    return QApplication::exec();
}
