#pragma once

#include <ZetoCamError.h>

#include <QStringList>

#include <cstdint>
#include <type_traits>

/// Counts the calls of a client into the parameter interface, keeps its writes and has one call fail.
class ParamFaults
{
public:
    /// Has the call number \a number, counted from 0 and from now on, fail with \a code. It does nothing
    /// then; the code 0 stands for a library that breaks its contract: null and 0 without an error.
    void failAt(int number, int32_t code)
    {
        m_calls = 0;
        m_faultyCall = number;
        m_code = code;
    }
    void stop() { failAt(-1, ZetoCam::Success); }

    /// Calls since the last failAt() or stop().
    int calls() const { return m_calls; }

    /// "feature=value" for each write that was tried, "feature()" for a command, since the last call.
    QStringList takeWrites() { return std::exchange(m_writes, {}); }

    /// Runs \a call unless it is to fail. \a error is the error receiver of the call, if any.
    template <typename Call>
    auto get(int32_t* error, Call call)
    {
        using Result = decltype(call());
        if (m_calls++ != m_faultyCall)
            return call();
        if (error)
            *error = m_code;
        if constexpr (std::is_same_v<Result, const char*>)
            return m_code ? "" : Result(nullptr);
        else
            return Result();
    }

    /// The same for a call that returns its code.
    template <typename Call>
    int32_t perform(Call call)
    {
        return m_calls++ == m_faultyCall ? m_code : call();
    }

    template <typename Call>
    int32_t write(const QString& what, Call call)
    {
        m_writes.append(what);
        return perform(call);
    }

private:
    int m_calls = 0;
    int m_faultyCall = -1;
    int32_t m_code = 0;
    QStringList m_writes;
};
