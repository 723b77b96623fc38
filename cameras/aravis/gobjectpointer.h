#pragma once

#include <glib-object.h>

#include <memory>

namespace ZetoAravis {

/// Owns one reference to an object of the GLib kind.
struct GObjectUnref
{
    void operator()(void* object) const { g_object_unref(object); }
};

template <typename Object>
using GObjectPointer = std::unique_ptr<Object, GObjectUnref>;

} // namespace ZetoAravis
