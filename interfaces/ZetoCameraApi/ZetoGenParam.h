#pragma once

/// The parameters of a camera or of a camera interface, looked up by feature name.
///
/// Conventions of all classes in this header:
/// - Ownership: the camera library owns every object and every text it returns. Parameters live as long as
///   their Array, an Array as long as the device or interface it was asked of. Nothing is deleted by the
///   caller; the destructors are there for implementers.
/// - Errors: operations that return int32_t give a ZetoCam::ErrorCode, 0 for success. Getters take an
///   `int32_t* error` that may be null; it is set to the code in every case. A getter that fails returns 0,
///   false or an empty text. Nothing throws.
/// - Threads: every operation may be called from any thread; calls on one Array are served one after the
///   other. Any of them may wait for the camera's answer.
/// - The order of the virtual operations is the binary interface.

#include "ZetoCamError.h"

#include <GenICamFwd.h>

#include <cstdint>

namespace ZetoGenParam {

class Boolean;
class Command;
class Enum;
class Float;
class Int;
class Param;
class String;

/// What Param::GetType() returns.
enum ParamType : int32_t
{
    TypeUnknown = 0, ///< a kind that only the node map gives access to, for example a register or a category
    TypeInt = 1,
    TypeFloat = 2,
    TypeBoolean = 3,
    TypeEnum = 4,
    TypeEnumEntry = 5,
    TypeString = 6,
    TypeCommand = 7,
};

/// Receives the changes of the parameters it is registered on.
class ParamEventSink
{
public:
    virtual ~ParamEventSink() = default;

    /// \a param may have changed: its value, limits, increment, entries or access. It is called for each
    /// change at least once, and also when nothing visible changed.
    ///
    /// Thread: the one whose call caused the change, before that call returns, while the library holds the
    /// lock of the parameter array. Reading and writing parameters, registering and unregistering (also this
    /// sink itself) are allowed; waiting for another thread is not. Exceptions must not leave it.
    virtual void OnParamChanged(Param* param) = 0;
};

/// One feature. The typed classes below have it as a virtual base.
class Param
{
public:
    virtual ~Param() = default;

    /// A ParamType.
    virtual int32_t GetType() = 0;

    /// Feature name, ASCII; for an entry of an enumeration the name of its node. Valid as long as the Param.
    virtual const char* GetName() = 0;

    /// Whether the feature exists and can be used in the camera's present state.
    virtual bool IsAvailable() = 0;

    /// Whether a value can be written now (for a command: whether it can be executed).
    virtual bool IsWritable() = 0;

    /// Whether the value can be read now.
    virtual bool IsReadable() = 0;

    /// Calls \a sink at every change from now on. A sink that is registered already stays registered once.
    /// The sink is not owned and must be unregistered before it is destroyed. ErrorInvalidArgument for null.
    virtual int32_t RegisterEventSink(ParamEventSink* sink) = 0;

    /// Once this has returned, \a sink is not called for this parameter any more: a call that runs on another
    /// thread is waited for. Within the sink's own OnParamChanged it returns at once. A sink that is not
    /// registered is no error.
    virtual int32_t UnregisterEventSink(ParamEventSink* sink) = 0;
};

/// A 64-bit integer feature.
class Int : public virtual Param
{
public:
    /// ErrorGenICamAccess when not writable, ErrorGenICamRange outside the limits or off the increment.
    /// Nothing is written then.
    virtual int32_t SetValue(int64_t value) = 0;
    virtual int64_t GetValue(int32_t* error) = 0;
    virtual int64_t GetMin(int32_t* error) = 0;
    virtual int64_t GetMax(int32_t* error) = 0;
    /// Valid values are GetMin() plus a multiple of this. May be 0 for a feature without an increment.
    virtual int64_t GetIncrement(int32_t* error) = 0;
};

/// A double precision feature.
class Float : public virtual Param
{
public:
    /// ErrorGenICamAccess when not writable, ErrorGenICamRange outside the limits.
    virtual int32_t SetValue(double value) = 0;
    virtual double GetValue(int32_t* error) = 0;
    virtual double GetMin(int32_t* error) = 0;
    virtual double GetMax(int32_t* error) = 0;
    /// 0 for a feature without an increment.
    virtual double GetIncrement(int32_t* error) = 0;
};

class Boolean : public virtual Param
{
public:
    virtual int32_t SetValue(bool value) = 0;
    virtual bool GetValue(int32_t* error) = 0;
};

/// One entry of an enumeration. Param::IsAvailable() tells whether it can be chosen now.
class EnumEntry : public virtual Param
{
public:
    /// Integer value, constant.
    virtual int64_t GetValue() = 0;
    /// Symbolic name without any prefix, constant. Valid as long as the entry.
    virtual const char* GetSymbolic() = 0;
};

class Enum : public virtual Param
{
public:
    /// Number of entries, chosen or not, available or not. Constant.
    virtual uint64_t GetEntriesCount() = 0;
    /// Null when \a index is not below GetEntriesCount().
    virtual EnumEntry* GetEntry(uint64_t index) = 0;
    /// Integer value of the current entry.
    virtual int64_t GetValue(int32_t* error) = 0;
    /// Symbolic name of the current entry; empty, with ErrorGenICamGeneric, when the camera's value has no
    /// entry. Valid as long as the Enum.
    virtual const char* GetValueStr(int32_t* error) = 0;
    /// Chooses an entry by its symbolic name. ErrorGenICamInvalidArgument when there is none of that name or
    /// \a symbolic is null, ErrorGenICamAccess when it is not available.
    virtual int32_t SetValueStr(const char* symbolic) = 0;
    /// Chooses an entry by its integer value. Errors as SetValueStr().
    virtual int32_t SetValue(int64_t value) = 0;
};

/// A text feature, UTF-8.
class String : public virtual Param
{
public:
    /// A null text is an empty text. ErrorGenICamInvalidArgument when it is too long for the camera.
    virtual int32_t SetValue(const char* value) = 0;
    /// Never null. Valid until the next GetValue() of this parameter: copy it at once, and let one thread at
    /// a time read a text feature.
    virtual const char* GetValue(int32_t* error) = 0;
};

class Command : public virtual Param
{
public:
    /// Starts the command and does not wait for its end.
    virtual int32_t Execute() = 0;
    /// Whether the last Execute() has ended; true when there was none.
    virtual bool IsDone(int32_t* error) = 0;
};

/// All features of one camera or of one camera interface.
///
/// The look-up operations return null when there is no such feature (\a error is ErrorGenICamUnknownParam) or
/// when it has another type (ErrorGenICamType). The same object is returned for the same name each time.
class Array
{
public:
    virtual ~Array() = default;

    virtual Param* GetParam(const char* name, int32_t* error) = 0;
    virtual Enum* GetEnum(const char* name, int32_t* error) = 0;
    virtual Int* GetInt(const char* name, int32_t* error) = 0;
    virtual Float* GetFloat(const char* name, int32_t* error) = 0;
    virtual Boolean* GetBoolean(const char* name, int32_t* error) = 0;
    virtual String* GetString(const char* name, int32_t* error) = 0;
    virtual Command* GetCommand(const char* name, int32_t* error) = 0;

    /// The GenApi node map behind the parameters; map 0 holds all of them, null for any other index. It is
    /// owned by the Array and lives as long. Using it beside the parameters is allowed: both see the same
    /// values, and event sinks hear of changes made through the nodes.
    virtual GENAPI_NAMESPACE::INodeMap* GetNodeMap(uint32_t index) = 0;
};

} // namespace ZetoGenParam
