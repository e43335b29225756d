#include "forms/application_icon.h"

/// A library's resources are not there before this call, which may stand in no namespace.
static void LoadResources() {
    Q_INIT_RESOURCE(forms);
}

namespace orvane {

QIcon ApplicationIcon() {
    LoadResources();
    return QIcon(":/orvane-32.png");
}

} // namespace orvane
