#pragma once

/// The length modifier of an int64_t for printf. Not part of GenApi.h.
#if defined(__GNUC__) && defined(__LP64__)
#define FMT_I64 "l"
#else
#define FMT_I64 "ll"
#endif
