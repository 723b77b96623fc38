#include "integernode.h"

#include "errors.h"
#include "text.h"
#include "validvalues.h"
#include "valuetext.h"

#include <algorithm>

namespace ZetoNodeMap {

IntegerNode::IntegerNode(NodeMap& map, NodeDeclaration&& declaration, Settings&& settings)
    : SourceNode(map, std::move(declaration), GenApi::intfIInteger, std::move(settings.source))
    , m_format(std::move(settings.format))
{
}

int64_t IntegerNode::integerValue() const
{
    return cachedValue();
}

std::string IntegerNode::textValue() const
{
    return integerToText(cachedValue(), m_format.representation);
}

void IntegerNode::assign(int64_t value)
{
    storeValue(value);
}

void IntegerNode::SetValue(int64_t Value, bool Verify)
{
    change("SetValue", [&] { set(Value, Verify); });
}

IntegerNode& IntegerNode::operator=(int64_t Value)
{
    SetValue(Value);
    return *this;
}

int64_t IntegerNode::GetValue(bool Verify, bool IgnoreCache)
{
    const Call call(map(), this, "GetValue");
    return checkedValue(Verify, IgnoreCache);
}

int64_t IntegerNode::operator()()
{
    return GetValue();
}

int64_t IntegerNode::operator*()
{
    return GetValue();
}

int64_t IntegerNode::GetMin()
{
    const Call call(map(), this, "GetMin");
    requireAvailableLimits();
    return min();
}

int64_t IntegerNode::GetMax()
{
    const Call call(map(), this, "GetMax");
    requireAvailableLimits();
    return max();
}

GenApi::EIncMode IntegerNode::GetIncMode()
{
    const Call call(map(), this, "GetIncMode");
    return source().validValues().empty() ? GenApi::fixedIncrement : GenApi::listIncrement;
}

int64_t IntegerNode::GetInc()
{
    const Call call(map(), this, "GetInc");
    requireAvailableLimits();
    return source().inc();
}

GenApi::int64_autovector_t IntegerNode::GetListOfValidValues(bool bounded)
{
    const Call call(map(), this, "GetListOfValidValues");
    std::vector<int64_t> values = source().validValues();
    if (bounded)
        keepWithin(values, min(), max());
    return toAutovector<GenApi::int64_autovector_t>(values);
}

GenApi::ERepresentation IntegerNode::GetRepresentation()
{
    const Call call(map(), this, "GetRepresentation");
    return m_format.representation;
}

GenICam::gcstring IntegerNode::GetUnit()
{
    const Call call(map(), this, "GetUnit");
    return toGenICam(m_format.unit);
}

void IntegerNode::ImposeMin(int64_t Value)
{
    const Call call(map(), this, "ImposeMin");
    m_imposedMin = Value;
}

void IntegerNode::ImposeMax(int64_t Value)
{
    const Call call(map(), this, "ImposeMax");
    m_imposedMax = Value;
}

GenICam::gcstring IntegerNode::valueToText(bool verify, bool ignoreCache)
{
    return toGenICam(integerToText(checkedValue(verify, ignoreCache), m_format.representation));
}

void IntegerNode::valueFromText(const GenICam::gcstring& text, bool verify)
{
    const std::optional<int64_t> value = integerFromText(fromGenICam(text), m_format.representation);
    if (!value)
        throwInvalidArgument(name(), "'" + fromGenICam(text) + "' is no integer");
    set(*value, verify);
}

int64_t IntegerNode::checkedValue(bool verify, bool ignoreCache)
{
    const int64_t value = readValue(verify, ignoreCache);
    if (verify)
        requireWithinLimits(value);
    return value;
}

void IntegerNode::set(int64_t value, bool verify)
{
    requireWritable(verify);
    if (verify) {
        requireWithinLimits(value);
        requireAllowed(value);
    }
    writeValue(value);
}

/// The limits that count are the natural ones: imposed limits are for those who ask for them.
void IntegerNode::requireWithinLimits(int64_t value) const
{
    const int64_t least = source().min();
    const int64_t most = source().max();
    if (value < least || value > most)
        throwOutOfRange(name(), std::to_string(value) + " is not within " + std::to_string(least) + " and " +
                                    std::to_string(most));
}

void IntegerNode::requireAllowed(int64_t value) const
{
    const std::vector<int64_t> values = source().validValues();
    if (!values.empty()) {
        if (std::find(values.begin(), values.end(), value) == values.end())
            throwOutOfRange(name(), std::to_string(value) + " is none of the valid values");
        return;
    }
    const int64_t increment = source().inc();
    if (increment <= 0)
        throwLogicalError(name(), "increment " + std::to_string(increment) + " is not positive");
    // the distance of two 64-bit integers takes the unsigned type
    const uint64_t distance = static_cast<uint64_t>(value) - static_cast<uint64_t>(source().min());
    if (distance % static_cast<uint64_t>(increment) != 0)
        throwOutOfRange(name(), std::to_string(value) + " misses the increment " + std::to_string(increment));
}

int64_t IntegerNode::min() const
{
    return std::max(source().min(), m_imposedMin);
}

int64_t IntegerNode::max() const
{
    return std::min(source().max(), m_imposedMax);
}

} // namespace ZetoNodeMap
