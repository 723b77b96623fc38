#pragma once

#include <GenApi/Autovector.h>
#include <GenApi/IValue.h>

namespace GENAPI_NAMESPACE {

/// A floating-point number.
struct GENAPI_DECL_ABSTRACT IFloat : virtual public IValue
{
    /// Writes the value. AccessException if it cannot be written, OutOfRangeException if it is outside the
    /// limits; the increment is not checked.
    virtual void SetValue(double Value, bool Verify = true) = 0;

    /// SetValue().
    virtual IFloat& operator=(double Value) = 0;

    /// Reads the value; AccessException if it cannot be read. \a Verify checks it against its limits,
    /// \a IgnoreCache asks the device in any case.
    virtual double GetValue(bool Verify = false, bool IgnoreCache = false) = 0;

    /// GetValue().
    virtual double operator()() = 0;

    /// GetValue().
    virtual double operator*() = 0;

    /// The lower limit, imposed ones included; -DBL_MAX if there is none.
    virtual double GetMin() = 0;

    /// The upper limit, imposed ones included; DBL_MAX if there is none.
    virtual double GetMax() = 0;

    /// Whether there is an increment.
    virtual bool HasInc() = 0;

    /// Whether values are bound to a list, to an increment or to neither.
    virtual EIncMode GetIncMode() = 0;

    /// The increment; RuntimeException if there is none.
    virtual double GetInc() = 0;

    /// The allowed values if they are bound to a list, else nothing. \a bounded leaves out those outside the
    /// limits.
    virtual double_autovector_t GetListOfValidValues(bool bounded = true) = 0;

    /// How the number is best shown.
    virtual ERepresentation GetRepresentation() = 0;

    /// The physical unit, or empty.
    virtual GENICAM_NAMESPACE::gcstring GetUnit() const = 0;

    /// The notation of the number's text.
    virtual EDisplayNotation GetDisplayNotation() const = 0;

    /// The digits of the number's text: significant ones in automatic notation, else those after the point.
    virtual int64_t GetDisplayPrecision() const = 0;

    /// Raises the lower limit that GetMin() reports.
    virtual void ImposeMin(double Value) = 0;

    /// Lowers the upper limit that GetMax() reports.
    virtual void ImposeMax(double Value) = 0;
};

} // namespace GENAPI_NAMESPACE
