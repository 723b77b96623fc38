#pragma once

#include <GenApi/Autovector.h>
#include <GenApi/IValue.h>

namespace GENAPI_NAMESPACE {

/// An integer of 64 bits.
struct GENAPI_DECL_ABSTRACT IInteger : virtual public IValue
{
    /// Writes the value. AccessException if it cannot be written, OutOfRangeException if it is outside the
    /// limits or off the increment, LogicalErrorException if the increment is not positive.
    virtual void SetValue(int64_t Value, bool Verify = true) = 0;

    /// SetValue().
    virtual IInteger& operator=(int64_t Value) = 0;

    /// Reads the value; AccessException if it cannot be read. \a Verify checks it against its limits,
    /// \a IgnoreCache asks the device in any case.
    virtual int64_t GetValue(bool Verify = false, bool IgnoreCache = false) = 0;

    /// GetValue().
    virtual int64_t operator()() = 0;

    /// GetValue().
    virtual int64_t operator*() = 0;

    /// The lower limit, imposed ones included. All of int64_t is possible.
    virtual int64_t GetMin() = 0;

    /// The upper limit, imposed ones included.
    virtual int64_t GetMax() = 0;

    /// Whether values are bound to a list or to an increment.
    virtual EIncMode GetIncMode() = 0;

    /// The distance between neighbouring values, counted from the lower limit.
    virtual int64_t GetInc() = 0;

    /// The allowed values if they are bound to a list, else nothing. \a bounded leaves out those outside the
    /// limits.
    virtual int64_autovector_t GetListOfValidValues(bool bounded = true) = 0;

    /// How the number is best shown.
    virtual ERepresentation GetRepresentation() = 0;

    /// The physical unit, or empty.
    virtual GENICAM_NAMESPACE::gcstring GetUnit() = 0;

    /// Raises the lower limit that GetMin() reports.
    virtual void ImposeMin(int64_t Value) = 0;

    /// Lowers the upper limit that GetMax() reports.
    virtual void ImposeMax(int64_t Value) = 0;
};

} // namespace GENAPI_NAMESPACE
