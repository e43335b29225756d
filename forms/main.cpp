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

#include <cstdlib>

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
        Ending.BeginAt(Signals.Descriptor());
    }

    /// Reports an exception that no guard of a window has caught.
    bool notify(QObject* receiver, QEvent* event) override {
        try {
            return QApplication::notify(receiver, event);
        } catch (...) {
            ReportCaught(Messages, Pointer);
            return false;
        }
    }

    EndSignals Signals;
    QtEnding Ending;
    QtSecondPress SecondPress;
    QtFocusMark FocusMark;
    QtInputDrain Input;
    QtMessageBox Messages{Input, Ending};
    QtMousePointer Pointer{Input};
};

/// Runs the program from the opening of the main window to its end.
int Run(Application& application) {
    LinuxFiles files;
    const CodePage page = DesktopCodePage();
    LinuxClock clock;
    LinuxEntropy entropy;
    RandomSource random(entropy);
    GioShell shell;
    QtClipboard clipboard(page);
    LinuxRegistry registry;
    Platform desktop{application.Messages,
                     application.Pointer,
                     files,
                     page,
                     clock,
                     random,
                     shell,
                     clipboard,
                     registry,
                     ProgramDirectory(),
                     QDir::separator().toLatin1()};
    PromptFolder folder;
    QtCommonDialog CMDialog(folder, application.Input, application.Ending);
    QtCommonDialog outputDialog(folder, application.Input, application.Ending);
    const auto form = MakeMainForm(desktop, CMDialog, outputDialog);
    return QApplication::exec();
}

} // namespace

int main() {
    // The command line is not passed on: the program has no options, and the toolkit would read its own.
    char name[] = "orvane";
    char* arguments[] = {name, nullptr};
    int count = 1;
    Application application(count, arguments);
    try {
        return Run(application);
    } catch (...) {
        ReportCaught(application.Messages, application.Pointer);
        return EXIT_FAILURE;
    }
}
