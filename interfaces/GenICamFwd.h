#pragma once

/// \file
/// Forward declarations of all classes of the interface.
///
/// The headers of version 3.0 bring a macro \c interface along, and so do these: include a foreign header
/// that has an identifier of this name before them, or undefine the macro after them.

#ifdef _WIN32
#include <objbase.h>
#elif !defined(interface)
#define interface struct
#endif

#include <Base/GCNamespace.h>
#include <GenApi/GenApiDll.h>
#include <GenApi/GenApiNamespace.h>

namespace GENICAM_NAMESPACE {

class gcstring;
class gcstring_vector;
class GenericException;

} // namespace GENICAM_NAMESPACE

namespace GENAPI_NAMESPACE {

struct GENAPI_DECL_ABSTRACT IBase;
struct GENAPI_DECL_ABSTRACT INode;
struct GENAPI_DECL_ABSTRACT IValue;
struct GENAPI_DECL_ABSTRACT IInteger;
struct GENAPI_DECL_ABSTRACT IFloat;
struct GENAPI_DECL_ABSTRACT IBoolean;
struct GENAPI_DECL_ABSTRACT ICommand;
struct GENAPI_DECL_ABSTRACT IString;
struct GENAPI_DECL_ABSTRACT IRegister;
struct GENAPI_DECL_ABSTRACT IEnumeration;
struct GENAPI_DECL_ABSTRACT IEnumEntry;
struct GENAPI_DECL_ABSTRACT ICategory;
struct GENAPI_DECL_ABSTRACT ISelector;
struct GENAPI_DECL_ABSTRACT INodeMap;
struct GENAPI_DECL_ABSTRACT IDestroy;
struct GENAPI_DECL_ABSTRACT IDeviceInfo;
struct GENAPI_DECL_ABSTRACT IUserData;
struct GENAPI_DECL_ABSTRACT IPort;
struct GENAPI_DECL_ABSTRACT IPortReplay;
struct GENAPI_DECL_ABSTRACT IPortRecorder;
struct GENAPI_DECL_ABSTRACT IPortWriteList;
struct GENAPI_DECL_ABSTRACT IPortConstruct;
struct GENAPI_DECL_ABSTRACT IChunkPort;

class CLock;
class CNodeCallback;
class node_vector;
class value_vector;

} // namespace GENAPI_NAMESPACE
