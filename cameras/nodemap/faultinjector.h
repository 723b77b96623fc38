#pragma once

#include "nodemap.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <random>
#include <vector>

namespace ZetoNodeMap {

/// An access hook that counts the calls of a client and makes some of them fail, for tests:
///
///     const auto faults = std::make_shared<FaultInjector>();
///     map->setAccessHook([faults](auto* call, auto* node) { faults->enter(call, node); });
///     faults->throwAt(17, FaultInjector::Fault::Timeout);
///
/// Thread: enter() runs under the node map's lock; take it (GetLock()) for the other functions while other
/// threads use the node map.
class FaultInjector
{
public:
    /// The classes of exceptions that a call into a node map can end with.
    enum class Fault
    {
        Generic,
        BadAlloc,
        InvalidArgument,
        OutOfRange,
        Property,
        Runtime,
        LogicalError,
        Access,
        Timeout,
        DynamicCast,
        StandardBadAlloc, ///< std::bad_alloc, which is none of GenICam's
    };

    static const std::vector<Fault>& allFaults();
    [[noreturn]] static void raise(Fault fault);

    /// Has the call number \a number fail, counted from 0 and from now on.
    void throwAt(int64_t number, Fault fault);
    /// Has each call fail with \a probability, from 0 to 1, with any fault.
    void throwRandomly(double probability, unsigned seed);
    void stop();

    /// Only calls for which \a filter is true count and fail; null for all.
    void setFilter(std::function<bool(const char* call, const GenApi::INode* node)> filter);

    /// Calls since the last throwAt(), throwRandomly() or stop().
    int64_t callCount() const { return m_calls; }
    /// How many of them failed.
    int64_t faultCount() const { return m_faults; }

    void enter(const char* call, const GenApi::INode* node);

private:
    void restart(int64_t faultyCall, double probability);
    void raiseRandomly();

    std::function<bool(const char*, const GenApi::INode*)> m_filter;
    int64_t m_calls = 0;
    int64_t m_faults = 0;
    int64_t m_faultyCall = -1;
    Fault m_fault = Fault::Generic;
    double m_probability = 0;
    std::mt19937 m_random;
};

} // namespace ZetoNodeMap
