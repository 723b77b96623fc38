#pragma once

/// \file
/// GENAPI_DECL marks what the library implements. GENAPI_DECL_ABSTRACT marks interfaces, which have no code
/// but one type in all libraries of a program, so that dynamic_cast works on nodes of another library.

#if defined(_WIN32)
#ifdef GENAPI_EXPORTS
#define GENAPI_DECL __declspec(dllexport)
#else
#define GENAPI_DECL __declspec(dllimport)
#endif
#define GENAPI_DECL_ABSTRACT
#else
#define GENAPI_DECL __attribute__((visibility("default")))
#define GENAPI_DECL_ABSTRACT __attribute__((visibility("default")))
#endif
