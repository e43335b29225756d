// Smart pointers for objects of GLib.
#pragma once

#include <memory>

#include <gio/gio.h>

namespace orvane {

struct GLibDeleter {
    void operator()(gchar* text) const { g_free(text); }
    void operator()(gchar** texts) const { g_strfreev(texts); }
    void operator()(GError* error) const { g_error_free(error); }
    void operator()(GList* list) const { g_list_free(list); }
    template <typename Object>
    void operator()(Object* object) const {
        g_object_unref(object);
    }
};

/// Owns a string, a null-terminated array of strings, an error, the links of a list (not its elements), or a
/// reference to an object.
template <typename T>
using GLibPointer = std::unique_ptr<T, GLibDeleter>;

} // namespace orvane
