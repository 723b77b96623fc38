#pragma once

/// \file
/// What follows from the version numbers: their text forms and the glue for versioned names.

#include <_GenICamVersion.h>

#define EXPAND_TO_STRINGISE_(x) #x
#define EXPAND_TO_STRINGISE(x) EXPAND_TO_STRINGISE_(x)

#define GENICAM_VERSION_MAJOR_STR EXPAND_TO_STRINGISE(GENICAM_VERSION_MAJOR)
#define GENICAM_VERSION_MINOR_STR EXPAND_TO_STRINGISE(GENICAM_VERSION_MINOR)
#define GENICAM_VERSION_SUBMINOR_STR EXPAND_TO_STRINGISE(GENICAM_VERSION_SUBMINOR)

#define GENICAM_GLUE_4_(a, b, c, d) a##_##b##_##c##_##d
#define GENICAM_GLUE_3_(a, b, c) a##_##b##_##c
#define GENICAM_GLUE_4(a, b, c, d) GENICAM_GLUE_4_(a, b, c, d)
#define GENICAM_GLUE_3(a, b, c) GENICAM_GLUE_3_(a, b, c)

/// \a name with the version and, where there is one, the company suffix: \c name_3_0_Suffix.
#ifdef GENICAM_COMPANY_SUFFIX
#define GENICAM_VERSIONED_NAME(name)                                                                         \
    GENICAM_GLUE_4(name, GENICAM_VERSION_MAJOR, GENICAM_VERSION_MINOR, GENICAM_COMPANY_SUFFIX)
#else
#define GENICAM_VERSIONED_NAME(name) GENICAM_GLUE_3(name, GENICAM_VERSION_MAJOR, GENICAM_VERSION_MINOR)
#endif
