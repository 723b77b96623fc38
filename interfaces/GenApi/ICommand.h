#pragma once

#include <GenApi/IValue.h>

namespace GENAPI_NAMESPACE {

/// Something that the device can be told to do.
struct GENAPI_DECL_ABSTRACT ICommand : virtual public IValue
{
    /// Starts it and does not wait for its end. AccessException if it cannot be executed now.
    virtual void Execute(bool Verify = true) = 0;

    /// Execute().
    virtual void operator()() = 0;

    /// Whether it has come to its end. When that is seen for the first time, the callbacks of the nodes that
    /// depend on the command are called. AccessException if the command is not implemented.
    virtual bool IsDone(bool Verify = true) = 0;
};

} // namespace GENAPI_NAMESPACE
