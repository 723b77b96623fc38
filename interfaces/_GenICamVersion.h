#pragma once

/// \file
/// The version of the GenICam interface that these headers declare. The numbers can be used in \c \#if, so
/// that code can tell this interface from a later one of an SDK.

#define GENICAM_VERSION_MAJOR 3
#define GENICAM_VERSION_MINOR 0
#define GENICAM_VERSION_SUBMINOR 0

/// Tag of the compiler that an SDK of this version is built with.
#define GENICAM_MAIN_COMPILER VC120

/// Appended to both namespaces. Objects of these headers are not binary compatible with those of another
/// maker's, and with the suffix a program that mixes the two does not link.
#define GENICAM_COMPANY_SUFFIX Zeto
