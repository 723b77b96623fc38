#pragma once

#include <Base/GCException.h>
#include <Base/GCLinkage.h>

/// The folder of an SDK that holds this platform's libraries.
#if defined(_WIN64)
#define PLATFORM_NAME "Win64_x64"
#elif defined(_WIN32)
#define PLATFORM_NAME "Win32_i86"
#elif defined(__APPLE__)
#define PLATFORM_NAME "Maci64_x64"
#elif defined(__aarch64__)
#define PLATFORM_NAME "Linux64_ARM"
#elif defined(__arm__)
#define PLATFORM_NAME "Linux32_ARMhf"
#elif defined(__x86_64__)
#define PLATFORM_NAME "Linux64_x64"
#else
#define PLATFORM_NAME "Linux32_i86"
#endif

#define GENICAM_UNUSED(unused_var) ((void)(unused_var))

/// Marks the declaration \a FUNCTION so that the compiler warns of its use.
#ifdef _MSC_VER
#define GENICAM_DEPRECATED(FUNCTION) __declspec(deprecated) FUNCTION
#else
#define GENICAM_DEPRECATED(FUNCTION) FUNCTION __attribute__((deprecated))
#endif

namespace GENICAM_NAMESPACE {

/// \a value as a \a To. Throws RuntimeException if it does not fit.
template <typename To, typename From>
inline To INTEGRAL_CAST(From value)
{
    const To result = static_cast<To>(value);
    if (static_cast<From>(result) != value || (result < To()) != (value < From()))
        throw RUNTIME_EXCEPTION("The value does not fit into %u bytes", static_cast<unsigned>(sizeof(To)));
    return result;
}

} // namespace GENICAM_NAMESPACE
