#include "forms/application_icon.h"

/// Registers the resources of this static library. The macro must be used outside any namespace.
static void LoadResources() {
    Q_INIT_RESOURCE(forms);
}

namespace orvane {

QIcon ApplicationIcon() {
    LoadResources();
    return QIcon(":/orvane-32.png");
}

} // namespace orvane
