#include "floatnode.h"

#include "errors.h"
#include "text.h"
#include "validvalues.h"
#include "valuetext.h"

#include <algorithm>
#include <cmath>

namespace ZetoNodeMap {

FloatNode::FloatNode(NodeMap& map, NodeDeclaration&& declaration, Settings&& settings)
    : SourceNode(map, std::move(declaration), GenApi::intfIFloat, std::move(settings.source))
    , m_format(std::move(settings.format))
{
}

int64_t FloatNode::integerValue() const
{
    const double value = std::round(cachedValue());
    const double end = 9223372036854775808.0; // 2^63, the first that does not fit
    if (!(value >= -end && value < end))
        throwOutOfRange(name(), "no 64-bit integer");
    return static_cast<int64_t>(value);
}

double FloatNode::floatValue() const
{
    return cachedValue();
}

std::string FloatNode::textValue() const
{
    return toText(cachedValue());
}

void FloatNode::assign(int64_t value)
{
    storeValue(static_cast<double>(value));
}

void FloatNode::assign(double value)
{
    storeValue(value);
}

void FloatNode::SetValue(double Value, bool Verify)
{
    change("SetValue", [&] { set(Value, Verify); });
}

FloatNode& FloatNode::operator=(double Value)
{
    SetValue(Value);
    return *this;
}

double FloatNode::GetValue(bool Verify, bool IgnoreCache)
{
    const Call call(map(), this, "GetValue");
    return checkedValue(Verify, IgnoreCache);
}

double FloatNode::operator()()
{
    return GetValue();
}

double FloatNode::operator*()
{
    return GetValue();
}

double FloatNode::GetMin()
{
    const Call call(map(), this, "GetMin");
    requireAvailableLimits();
    return min();
}

double FloatNode::GetMax()
{
    const Call call(map(), this, "GetMax");
    requireAvailableLimits();
    return max();
}

bool FloatNode::HasInc()
{
    const Call call(map(), this, "HasInc");
    return source().inc().has_value();
}

GenApi::EIncMode FloatNode::GetIncMode()
{
    const Call call(map(), this, "GetIncMode");
    if (!source().validValues().empty())
        return GenApi::listIncrement;
    return source().inc() ? GenApi::fixedIncrement : GenApi::noIncrement;
}

double FloatNode::GetInc()
{
    const Call call(map(), this, "GetInc");
    requireAvailableLimits();
    const std::optional<double> increment = source().inc();
    if (!increment)
        throwRuntimeError(name(), "has no increment");
    return *increment;
}

GenApi::double_autovector_t FloatNode::GetListOfValidValues(bool bounded)
{
    const Call call(map(), this, "GetListOfValidValues");
    std::vector<double> values = source().validValues();
    if (bounded)
        keepWithin(values, min(), max());
    return toAutovector<GenApi::double_autovector_t>(values);
}

GenApi::ERepresentation FloatNode::GetRepresentation()
{
    const Call call(map(), this, "GetRepresentation");
    return m_format.representation;
}

GenICam::gcstring FloatNode::GetUnit() const
{
    const Call call(map(), this, "GetUnit");
    return toGenICam(m_format.unit);
}

GenApi::EDisplayNotation FloatNode::GetDisplayNotation() const
{
    const Call call(map(), this, "GetDisplayNotation");
    return m_format.notation;
}

int64_t FloatNode::GetDisplayPrecision() const
{
    const Call call(map(), this, "GetDisplayPrecision");
    return m_format.precision;
}

void FloatNode::ImposeMin(double Value)
{
    const Call call(map(), this, "ImposeMin");
    m_imposedMin = Value;
}

void FloatNode::ImposeMax(double Value)
{
    const Call call(map(), this, "ImposeMax");
    m_imposedMax = Value;
}

GenICam::gcstring FloatNode::valueToText(bool verify, bool ignoreCache)
{
    return toGenICam(toText(checkedValue(verify, ignoreCache)));
}

void FloatNode::valueFromText(const GenICam::gcstring& text, bool verify)
{
    const std::optional<double> value = floatFromText(fromGenICam(text));
    if (!value)
        throwInvalidArgument(name(), "'" + fromGenICam(text) + "' is no number");
    set(*value, verify);
}

double FloatNode::checkedValue(bool verify, bool ignoreCache)
{
    const double value = readValue(verify, ignoreCache);
    if (verify)
        requireWithinLimits(value);
    return value;
}

void FloatNode::set(double value, bool verify)
{
    requireWritable(verify);
    if (verify)
        requireWithinLimits(value);
    writeValue(value);
}

/// Not a number passes: it is neither below nor above.
void FloatNode::requireWithinLimits(double value) const
{
    const double least = source().min();
    const double most = source().max();
    if (value < least || value > most)
        throwOutOfRange(name(), toText(value) + " is not within " + toText(least) + " and " + toText(most));
}

std::string FloatNode::toText(double value) const
{
    return floatToText(value, m_format, source().min(), source().max());
}

double FloatNode::min() const
{
    return std::max(source().min(), m_imposedMin);
}

double FloatNode::max() const
{
    return std::min(source().max(), m_imposedMax);
}

} // namespace ZetoNodeMap
