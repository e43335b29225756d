// The pointer that tells the user that the program is busy.
#pragma once

namespace orvane {

/// The pointer is simply set: two busy calls are undone by one normal call.
class MousePointer {
  public:
    virtual ~MousePointer() = default;
    virtual void ShowBusy() = 0;
    /// Clicks and keys that arrived while the pointer was busy are dropped.
    virtual void ShowNormal() = 0;
};

} // namespace orvane
