#include "validation/concealment.h"

namespace orvane::validation {

void CheckConcealment(Record& record, const Scale& scale) {
    (void)record;
    (void)scale;
}

} // namespace orvane::validation
