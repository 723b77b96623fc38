#pragma once

/// \file
/// All node interfaces in one include, without EnumClasses.h, IDestroy.h and Compatibility.h.

#include <GenApi/Autovector.h>
#include <GenApi/Container.h>
#include <GenApi/GenApiDll.h>
#include <GenApi/GenApiNamespace.h>
#include <GenApi/GenApiVersion.h>
#include <GenApi/IBase.h>
#include <GenApi/IBoolean.h>
#include <GenApi/ICategory.h>
#include <GenApi/ICommand.h>
#include <GenApi/IEnumEntry.h>
#include <GenApi/IEnumeration.h>
#include <GenApi/IFloat.h>
#include <GenApi/IInteger.h>
#include <GenApi/INode.h>
#include <GenApi/INodeMap.h>
#include <GenApi/IRegister.h>
#include <GenApi/IString.h>
#include <GenApi/IValue.h>
#include <GenApi/NodeCallback.h>
#include <GenApi/Pointer.h>
#include <GenApi/Synch.h>
#include <GenApi/Types.h>

// This one needs others before it.
#include <GenApi/ISelector.h>
