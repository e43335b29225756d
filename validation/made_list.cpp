#include "validation/made_list.h"

namespace orvane::validation {

void ReadBack(MadeList& list) {
    list.Unreadable.clear();
    list.Tables.clear();
    list.Blocks.clear();
    try {
        list.Tables = ReadList(list.Bytes, list.Setup);
    } catch (const LayoutFault& fault) {
        list.Unreadable = fault.what();
    }
    for (const BlockTable& table : list.Tables)
        list.Blocks.push_back(DownTheColumns(table));
}

} // namespace orvane::validation
