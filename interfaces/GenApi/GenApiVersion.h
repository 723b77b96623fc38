#pragma once

/// \file
/// The version numbers under the name of the node interfaces.

#include <GenICamVersion.h>

#define GENAPI_VERSION_MAJOR GENICAM_VERSION_MAJOR
#define GENAPI_VERSION_MINOR GENICAM_VERSION_MINOR
#define GENAPI_VERSION_SUBMINOR GENICAM_VERSION_SUBMINOR
