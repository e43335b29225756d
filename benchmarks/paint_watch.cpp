// A plugin that Qt loads into a program when QT_QPA_GENERIC_PLUGINS names it. When the first window has been
// painted, it writes the time (nanoseconds of the steady clock) and the peak memory (kilobytes) to standard
// output and ends the program. The program contains no code for it.
#include <QCoreApplication>
#include <QEvent>
#include <QGenericPlugin>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>

namespace {

long PeakMemory() {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);)
        if (line.starts_with("VmHWM:"))
            return std::strtol(line.c_str() + sizeof "VmHWM:", nullptr, 10);
    return 0;
}

[[noreturn]] void Report() {
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    std::printf("%lld %ld\n", static_cast<long long>(std::chrono::nanoseconds(now).count()), PeakMemory());
    static_cast<void>(std::fflush(stdout));
    std::_Exit(0);
}

class PaintWatch : public QObject {
  public:
    PaintWatch() { QCoreApplication::instance()->installEventFilter(this); }

    bool eventFilter(QObject* watched, QEvent* event) override {
        // All parts of the window are painted before the event loop runs again and the timer expires.
        if (event->type() == QEvent::Paint && timer_ == 0)
            timer_ = startTimer(0);
        return QObject::eventFilter(watched, event);
    }

  protected:
    void timerEvent(QTimerEvent* /*event*/) override { Report(); }

  private:
    int timer_ = 0;
};

} // namespace

class PaintWatchPlugin : public QGenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "paint_watch.json")

  public:
    QObject* create(const QString& /*name*/, const QString& /*arguments*/) override { return new PaintWatch; }
};

#include "paint_watch.moc"
