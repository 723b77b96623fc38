#pragma once

#include <glib.h>

#include <memory>
#include <string>

namespace ZetoAravis {

struct GErrorFree
{
    void operator()(GError* error) const { g_error_free(error); }
};

/// Throws the GenICam exception that says what \a error says: out of range, access, invalid argument,
/// timeout, property, logical or run-time error. \a nodeName tells the reader where it happened.
[[noreturn]] void throwAsGenICam(const GError& error, const std::string& nodeName);

/// Calls \a call with a place for an error and returns its result.
/// \throws GenICam::GenericException when the call reports an error.
template <typename Call>
auto checked(const std::string& nodeName, Call call)
{
    GError* raw = nullptr;
    const auto result = call(&raw);
    const std::unique_ptr<GError, GErrorFree> error(raw);
    if (error)
        throwAsGenICam(*error, nodeName);
    return result;
}

/// The same for calls without a result.
template <typename Call>
void checkedCall(const std::string& nodeName, Call call)
{
    checked(nodeName, [&](GError** error) {
        call(error);
        return true;
    });
}

} // namespace ZetoAravis
