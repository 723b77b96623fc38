#pragma once

/// \file
/// The base library in one include, without the locks of GCSynch.h.

#include <Base/GCException.h>
#include <Base/GCString.h>
#include <Base/GCStringVector.h>
#include <Base/GCTypes.h>
#include <Base/GCUtilities.h>
