// The mouse pointer: busy or normal.
#pragma once

namespace orvane {

/// Calls are not counted: one ShowNormal ends any number of ShowBusy calls.
class MousePointer {
  public:
    virtual ~MousePointer() = default;
    virtual void ShowBusy() = 0;
    /// Clicks and keys that arrived while the pointer was busy are discarded.
    virtual void ShowNormal() = 0;
};

} // namespace orvane
