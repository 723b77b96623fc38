#pragma once

/// \file
/// The versioned namespace of the node interfaces and its short name. Declarations go into
/// <tt>namespace GENAPI_NAMESPACE</tt>; the alias \c GenApi cannot be reopened.

#include <GenICamVersion.h>

#define GENAPI_NAMESPACE GENICAM_VERSIONED_NAME(GenApi)

namespace GENAPI_NAMESPACE {
}

namespace GenApi = GENAPI_NAMESPACE;
