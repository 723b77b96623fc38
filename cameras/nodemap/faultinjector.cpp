#include "faultinjector.h"

#include <new>

namespace ZetoNodeMap {

const std::vector<FaultInjector::Fault>& FaultInjector::allFaults()
{
    static const std::vector<Fault> faults = {
        Fault::Generic,  Fault::BadAlloc,    Fault::InvalidArgument,  Fault::OutOfRange,
        Fault::Property, Fault::Runtime,     Fault::LogicalError,     Fault::Access,
        Fault::Timeout,  Fault::DynamicCast, Fault::StandardBadAlloc,
    };
    return faults;
}

void FaultInjector::raise(Fault fault)
{
    switch (fault) {
    case Fault::Generic:
        throw GENERIC_EXCEPTION("injected generic fault");
    case Fault::BadAlloc:
        throw BAD_ALLOC_EXCEPTION("injected lack of memory");
    case Fault::InvalidArgument:
        throw INVALID_ARGUMENT_EXCEPTION("injected invalid argument");
    case Fault::OutOfRange:
        throw OUT_OF_RANGE_EXCEPTION("injected value out of range");
    case Fault::Property:
        throw PROPERTY_EXCEPTION("injected property fault");
    case Fault::Runtime:
        throw RUNTIME_EXCEPTION("injected fault at run time");
    case Fault::LogicalError:
        throw LOGICAL_ERROR_EXCEPTION("injected logical error");
    case Fault::Access:
        throw ACCESS_EXCEPTION("injected refusal of access");
    case Fault::Timeout:
        throw TIMEOUT_EXCEPTION("injected time-out");
    case Fault::DynamicCast:
        throw DYNAMICCAST_EXCEPTION("injected failure of a cast");
    case Fault::StandardBadAlloc:
        break;
    }
    throw std::bad_alloc();
}

void FaultInjector::restart(int64_t faultyCall, double probability)
{
    m_calls = 0;
    m_faults = 0;
    m_faultyCall = faultyCall;
    m_probability = probability;
}

void FaultInjector::throwAt(int64_t number, Fault fault)
{
    restart(number, 0);
    m_fault = fault;
}

void FaultInjector::throwRandomly(double probability, unsigned seed)
{
    restart(-1, probability);
    m_random.seed(seed);
}

void FaultInjector::stop()
{
    restart(-1, 0);
}

void FaultInjector::setFilter(std::function<bool(const char*, const GenApi::INode*)> filter)
{
    m_filter = std::move(filter);
}

void FaultInjector::enter(const char* call, const GenApi::INode* node)
{
    if (m_filter && !m_filter(call, node))
        return;
    if (m_calls++ == m_faultyCall) {
        ++m_faults;
        raise(m_fault);
    }
    if (m_probability > 0)
        raiseRandomly();
}

void FaultInjector::raiseRandomly()
{
    if (std::uniform_real_distribution<>(0, 1)(m_random) >= m_probability)
        return;
    ++m_faults;
    raise(allFaults()[m_random() % allFaults().size()]);
}

} // namespace ZetoNodeMap
