#pragma once

/// \file
/// Numbers of fixed size, their limits, and the export macros of the base library.

#include <Base/GCNamespace.h>

#include <cfloat>
#include <climits>
#include <cstddef>
#include <cstdint>

using float32_t = float;
using float64_t = double;

#define GC_INT8_MAX INT8_MAX
#define GC_INT8_MIN INT8_MIN
#define GC_UINT8_MAX UINT8_MAX
#define GC_INT16_MAX INT16_MAX
#define GC_INT16_MIN INT16_MIN
#define GC_UINT16_MAX UINT16_MAX
#define GC_INT32_MAX INT32_MAX
#define GC_INT32_MIN INT32_MIN
#define GC_UINT32_MAX UINT32_MAX
#define GC_INT64_MAX INT64_MAX
#define GC_INT64_MIN INT64_MIN
#define GC_UINT64_MAX UINT64_MAX

/// GCBASE_API marks what the base library implements; GCBASE_RTTI_CLASS_API marks classes whose type must be
/// the same in all libraries of a program, so that catching and dynamic_cast work from one to the other.
/// GCBASE_INLINE_CLASS_API marks classes without code in the library that its exported names are made of.
#if defined(_WIN32)
#ifdef GCBASE_EXPORTS
#define GCBASE_API __declspec(dllexport)
#else
#define GCBASE_API __declspec(dllimport)
#endif
#define GCBASE_RTTI_CLASS_API GCBASE_API
#define GCBASE_INLINE_CLASS_API
#else
#define GCBASE_API __attribute__((visibility("default")))
#define GCBASE_RTTI_CLASS_API __attribute__((visibility("default")))
#define GCBASE_INLINE_CLASS_API __attribute__((visibility("default")))
#endif

/// Meant for unused parameters. With gcc it expands to nothing and silences nothing: name none instead.
#ifdef _MSC_VER
#define GC_UNUSED(unused_var) ((void)(unused_var))
#else
#define GC_UNUSED(unused_var)
#endif

namespace GENICAM_NAMESPACE {

/// A version of three numbers.
struct Version_t
{
    uint16_t Major;
    uint16_t Minor;
    uint16_t SubMinor;
};

} // namespace GENICAM_NAMESPACE

using GENICAM_NAMESPACE::Version_t;
