#pragma once

/// \file
/// The versioned namespace of the base library and its short name. Declarations go into
/// <tt>namespace GENICAM_NAMESPACE</tt>; the alias \c GenICam cannot be reopened.

#include <GenICamVersion.h>

#define GENICAM_NAMESPACE GENICAM_VERSIONED_NAME(GenICam)

namespace GENICAM_NAMESPACE {
}

namespace GenICam = GENICAM_NAMESPACE;
