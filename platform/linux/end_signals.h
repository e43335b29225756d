// The signals that ask the program to end.
#pragma once

namespace orvane {

/// As long as the object exists, the first SIGTERM, SIGINT or SIGHUP does not end the program, but makes the
/// descriptor readable. A second signal of the same kind ends the program at once. A signal that was already
/// ignored when the program started, as under nohup, stays ignored. SIGPIPE is ignored, so that writing to a
/// closed terminal does not end the program.
class EndSignals {
  public:
    /// Throws a Failure when the system has no free file descriptor.
    /// Requires: no other object of this class exists.
    EndSignals();
    ~EndSignals();
    EndSignals(const EndSignals&) = delete;
    EndSignals& operator=(const EndSignals&) = delete;

    /// Readable as soon as a signal has arrived.
    [[nodiscard]] int Descriptor() const { return descriptor_; }

  private:
    int descriptor_;
};

} // namespace orvane
