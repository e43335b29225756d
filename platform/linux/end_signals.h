// The signals that ask a program to end.
#pragma once

namespace orvane {

/// While it lives, SIGTERM, SIGINT and SIGHUP end nothing by themselves: each makes the descriptor readable.
/// One that was ignored at the start of the program, as nohup does, stays ignored. SIGPIPE is ignored, so
/// that words for a terminal that is gone do no harm.
class EndSignals {
  public:
    /// Throws a Failure when the system has no descriptor left.
    EndSignals();
    ~EndSignals();
    EndSignals(const EndSignals&) = delete;
    EndSignals& operator=(const EndSignals&) = delete;

    /// Has something to read once a signal has come.
    [[nodiscard]] int Descriptor() const { return descriptor_; }

  private:
    int descriptor_;
};

} // namespace orvane
