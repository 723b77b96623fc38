#pragma once

/// \file
/// Everything of the interface in one include.

#include <Base/GCBase.h>
#include <GenApi/GenApi.h>
