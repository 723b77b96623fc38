#include "nodevalues.h"

#include "cameradescription.h"
#include "evaluableform.h"
#include "gcerror.h"

#include <arv.h>

#include <Base/GCException.h>

#include <cmath>
#include <limits>
#include <stdexcept>

namespace ZetoAravis {
namespace {

GObjectPointer<ArvGc> parse(const CameraDescription& description, ArvDevice& device)
{
    const std::string xml = evaluableForm(description);
    const std::lock_guard<std::mutex> lock(NodeValues::parserMutex());
    GObjectPointer<ArvGc> genicam(arv_gc_new(&device, xml.data(), xml.size()));
    if (!genicam)
        throw std::runtime_error("the description cannot be evaluated");
    return genicam;
}

std::int64_t toInteger(double value)
{
    constexpr double limit = 9223372036854775808.0; // 2^63, the first value that does not fit
    if (!(value < limit))
        return std::numeric_limits<std::int64_t>::max();
    return value < -limit ? std::numeric_limits<std::int64_t>::min() : static_cast<std::int64_t>(value);
}

} // namespace

NodeValues::NodeValues(const CameraDescription& description, ArvDevice& device)
    : m_description(description)
    , m_genicam(parse(description, device))
{
    m_nodes.reserve(description.nodes().size());
    for (const DescriptionNode& node : description.nodes())
        m_nodes.push_back(arv_gc_get_node(m_genicam.get(), node.name.c_str()));
}

std::mutex& NodeValues::parserMutex()
{
    static std::mutex mutex;
    return mutex;
}

const std::string& NodeValues::name(int node) const
{
    return m_description.node(node).name;
}

ArvGcNode* NodeValues::found(int node) const
{
    return m_nodes[static_cast<std::size_t>(node)];
}

template <typename Interface>
Interface* NodeValues::as(int node, bool isOfThatKind) const
{
    if (!isOfThatKind)
        throw PROPERTY_EXCEPTION("%s has no value of this kind", name(node).c_str());
    return reinterpret_cast<Interface*>(found(node));
}

std::int64_t NodeValues::integer(int node) const
{
    ArvGcNode* const gcNode = found(node);
    return checked(name(node), [&](GError** error) -> std::int64_t {
        if (ARV_IS_GC_BOOLEAN(gcNode))
            return arv_gc_boolean_get_value(ARV_GC_BOOLEAN(gcNode), error) ? 1 : 0;
        if (ARV_IS_GC_FLOAT(gcNode) && !ARV_IS_GC_INTEGER(gcNode))
            return toInteger(arv_gc_float_get_value(ARV_GC_FLOAT(gcNode), error));
        return arv_gc_integer_get_value(as<ArvGcInteger>(node, ARV_IS_GC_INTEGER(gcNode)), error);
    });
}

void NodeValues::setInteger(int node, std::int64_t value)
{
    ArvGcNode* const gcNode = found(node);
    checkedCall(name(node), [&](GError** error) {
        if (ARV_IS_GC_BOOLEAN(gcNode))
            arv_gc_boolean_set_value(ARV_GC_BOOLEAN(gcNode), value != 0, error);
        else if (ARV_IS_GC_FLOAT(gcNode) && !ARV_IS_GC_INTEGER(gcNode))
            arv_gc_float_set_value(ARV_GC_FLOAT(gcNode), static_cast<double>(value), error);
        else
            arv_gc_integer_set_value(as<ArvGcInteger>(node, ARV_IS_GC_INTEGER(gcNode)), value, error);
    });
}

double NodeValues::real(int node) const
{
    ArvGcNode* const gcNode = found(node);
    if (!ARV_IS_GC_FLOAT(gcNode))
        return static_cast<double>(integer(node));
    return checked(name(node),
                   [&](GError** error) { return arv_gc_float_get_value(ARV_GC_FLOAT(gcNode), error); });
}

void NodeValues::setReal(int node, double value)
{
    ArvGcNode* const gcNode = found(node);
    if (!ARV_IS_GC_FLOAT(gcNode))
        return setInteger(node, toInteger(std::nearbyint(value)));
    checkedCall(name(node),
                [&](GError** error) { arv_gc_float_set_value(ARV_GC_FLOAT(gcNode), value, error); });
}

std::string NodeValues::text(int node) const
{
    auto* const gcString = as<ArvGcString>(node, ARV_IS_GC_STRING(found(node)));
    const char* const value =
        checked(name(node), [&](GError** error) { return arv_gc_string_get_value(gcString, error); });
    return value ? value : std::string();
}

void NodeValues::setText(int node, const std::string& value)
{
    auto* const gcString = as<ArvGcString>(node, ARV_IS_GC_STRING(found(node)));
    checkedCall(name(node), [&](GError** error) { arv_gc_string_set_value(gcString, value.c_str(), error); });
}

std::int64_t NodeValues::maximumLength(int node) const
{
    auto* const gcString = as<ArvGcString>(node, ARV_IS_GC_STRING(found(node)));
    return checked(name(node), [&](GError** error) { return arv_gc_string_get_max_length(gcString, error); });
}

void NodeValues::execute(int node)
{
    auto* const command = as<ArvGcCommand>(node, ARV_IS_GC_COMMAND(found(node)));
    checkedCall(name(node), [&](GError** error) { arv_gc_command_execute(command, error); });
}

std::uint64_t NodeValues::address(int node) const
{
    auto* const gcRegister = as<ArvGcRegister>(node, ARV_IS_GC_REGISTER(found(node)));
    return checked(name(node),
                   [&](GError** error) { return arv_gc_register_get_address(gcRegister, error); });
}

std::uint64_t NodeValues::length(int node) const
{
    auto* const gcRegister = as<ArvGcRegister>(node, ARV_IS_GC_REGISTER(found(node)));
    return checked(name(node), [&](GError** error) { return arv_gc_register_get_length(gcRegister, error); });
}

std::vector<std::uint8_t> NodeValues::bytes(int node) const
{
    std::vector<std::uint8_t> bytes(length(node));
    if (bytes.empty())
        return bytes;
    auto* const gcRegister = as<ArvGcRegister>(node, true);
    checkedCall(name(node),
                [&](GError** error) { arv_gc_register_get(gcRegister, bytes.data(), bytes.size(), error); });
    return bytes;
}

void NodeValues::setBytes(int node, const std::vector<std::uint8_t>& bytes)
{
    auto* const gcRegister = as<ArvGcRegister>(node, ARV_IS_GC_REGISTER(found(node)));
    if (bytes.size() != length(node))
        throw INVALID_ARGUMENT_EXCEPTION("%s takes exactly all of its bytes", name(node).c_str());
    if (bytes.empty())
        return;
    checkedCall(name(node),
                [&](GError** error) { arv_gc_register_set(gcRegister, bytes.data(), bytes.size(), error); });
}

namespace {

/// The result of a limit call; \a extreme where the library knows none.
template <typename Number, typename Call>
Number limitOr(Number extreme, Call call)
{
    GError* raw = nullptr;
    const Number limit = call(&raw);
    const std::unique_ptr<GError, GErrorFree> error(raw);
    return error ? extreme : limit;
}

} // namespace

std::int64_t NodeValues::convertedMinimum(int node) const
{
    auto* const gcInteger = as<ArvGcInteger>(node, ARV_IS_GC_INTEGER(found(node)));
    return limitOr(std::numeric_limits<std::int64_t>::min(),
                   [&](GError** error) { return arv_gc_integer_get_min(gcInteger, error); });
}

std::int64_t NodeValues::convertedMaximum(int node) const
{
    auto* const gcInteger = as<ArvGcInteger>(node, ARV_IS_GC_INTEGER(found(node)));
    return limitOr(std::numeric_limits<std::int64_t>::max(),
                   [&](GError** error) { return arv_gc_integer_get_max(gcInteger, error); });
}

double NodeValues::convertedRealMinimum(int node) const
{
    auto* const gcFloat = as<ArvGcFloat>(node, ARV_IS_GC_FLOAT(found(node)));
    return limitOr(std::numeric_limits<double>::lowest(),
                   [&](GError** error) { return arv_gc_float_get_min(gcFloat, error); });
}

double NodeValues::convertedRealMaximum(int node) const
{
    auto* const gcFloat = as<ArvGcFloat>(node, ARV_IS_GC_FLOAT(found(node)));
    return limitOr(std::numeric_limits<double>::max(),
                   [&](GError** error) { return arv_gc_float_get_max(gcFloat, error); });
}

} // namespace ZetoAravis
