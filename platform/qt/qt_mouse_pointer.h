// The mouse pointer of the whole program.
#pragma once

#include "platform/mouse_pointer.h"
#include "platform/qt/qt_input_drain.h"

namespace orvane {

class QtMousePointer : public MousePointer {
  public:
    explicit QtMousePointer(QtInputDrain& input) : input_(input) {}
    void ShowBusy() override;
    void ShowNormal() override;

  private:
    QtInputDrain& input_;
};

} // namespace orvane
