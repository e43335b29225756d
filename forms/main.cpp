#include "engine/random_source.h"
#include "forms/application_icon.h"
#include "forms/event_guard.h"
#include "forms/main_form.h"
#include "platform/linux/code_page_iconv.h"
#include "platform/linux/gio_shell.h"
#include "platform/linux/linux_clock.h"
#include "platform/linux/linux_entropy.h"
#include "platform/linux/linux_files.h"
#include "platform/linux/linux_registry.h"
#include "platform/qt/qt_clipboard.h"
#include "platform/qt/qt_common_dialog.h"
#include "platform/qt/qt_input_drain.h"
#include "platform/qt/qt_message_box.h"
#include "platform/qt/qt_mouse_pointer.h"
#include "platform/qt/qt_second_press.h"

#include <QApplication>
#include <QDir>

namespace {

using namespace orvane;

/// The last resort: what escapes from the handlers of the windows and of the toolkit itself is reported too.
class Application : public QApplication {
  public:
    Application(int& count, char** arguments)
        : QApplication(count, arguments), messages_(input_), pointer_(input_), guard_(messages_, pointer_) {
        setApplicationName("orvane");
        setOrganizationName("Orvane Software");
        setDesktopFileName("orvane");
        setWindowIcon(ApplicationIcon());
        setQuitOnLastWindowClosed(true);
    }

    bool notify(QObject* receiver, QEvent* event) override {
        try {
            return QApplication::notify(receiver, event);
        } catch (...) {
            guard_.Handle([] { throw; });
            return false;
        }
    }

    QtInputDrain& Input() { return input_; }
    MessageBox& Messages() { return messages_; }
    MousePointer& Pointer() { return pointer_; }

  private:
    QtSecondPress secondPress_;
    QtInputDrain input_;
    QtMessageBox messages_;
    QtMousePointer pointer_;
    EventGuard guard_;
};

} // namespace

int main(int argc, char* argv[]) {
    Application application(argc, argv);
    LinuxFiles files;
    const CodePage page = DesktopCodePage();
    LinuxClock clock;
    LinuxEntropy entropy;
    RandomSource random(entropy);
    GioShell shell;
    QtClipboard board(page);
    LinuxRegistry keys;
    Platform desktop{application.Messages(),
                     application.Pointer(),
                     files,
                     page,
                     clock,
                     random,
                     shell,
                     board,
                     keys,
                     QDir::toNativeSeparators(QCoreApplication::applicationDirPath()).toStdString(),
                     QDir::separator().toLatin1()};
    PromptFolder folder;
    QtCommonDialog CMDialog(folder, application.Input());
    QtCommonDialog outputDialog(folder, application.Input());
    MainForm form(desktop, CMDialog, outputDialog);
    form.Open();
    return QApplication::exec();
}
