#pragma once

#include <GenApi/GenApi.h>

/// Version of the GenApi interface that is compiled against, as major * 100 + minor.
#define ZETO_GENAPI_VERSION (GENICAM_VERSION_MAJOR * 100 + GENICAM_VERSION_MINOR)

/// The parameter list of the three metadata getters that gained an optional argument with GenApi 3.3.
#if ZETO_GENAPI_VERSION >= 303
#define ZETO_OPTIONAL_VERIFY bool /*Verify*/ = false
#else
#define ZETO_OPTIONAL_VERIFY
#endif
