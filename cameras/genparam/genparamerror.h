#pragma once

#include <ZetoCamError.h>

#include <GenICam.h>

#include <cstdint>
#include <utility>

namespace ZetoGenParam {

/// Thrown by a value source so that the camera library's \a code reaches the user of a parameter unchanged;
/// the users of the node map see a RuntimeException.
class CodeException : public GENICAM_NAMESPACE::RuntimeException
{
public:
    explicit CodeException(int32_t code);
    int32_t code() const { return m_code; }

private:
    int32_t m_code;
};

/// The camera library's code for the exception that is being handled; call it in a catch block only.
///
/// | exception | code |
/// |---|---|
/// | CodeException | its code |
/// | AccessException | ErrorGenICamAccess |
/// | OutOfRangeException | ErrorGenICamRange |
/// | InvalidArgumentException | ErrorGenICamInvalidArgument |
/// | DynamicCastException | ErrorGenICamType |
/// | PropertyException, LogicalErrorException | ErrorGenICamTree |
/// | TimeoutException | ErrorNoDevice |
/// | any other GenericException | ErrorGenICamGeneric |
/// | anything else | ErrorUnknown |
int32_t codeOfCurrentException();

inline void setError(int32_t* error, int32_t code)
{
    if (error)
        *error = code;
}

/// Runs \a access; \return Success or the code of what it threw. Nothing leaves it.
template <typename Access>
int32_t guardedCall(Access&& access)
{
    try {
        std::forward<Access>(access)();
    } catch (...) {
        return codeOfCurrentException();
    }
    return ZetoCam::Success;
}

/// Runs \a access and returns its value, or \a fallback when it throws. \a error, which may be null, is set
/// to the code.
template <typename Value, typename Access>
Value guardedGet(int32_t* error, Value fallback, Access&& access)
{
    setError(error, guardedCall([&] { fallback = std::forward<Access>(access)(); }));
    return fallback;
}

} // namespace ZetoGenParam
