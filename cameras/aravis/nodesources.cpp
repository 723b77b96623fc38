#include "nodesources.h"

#include "cameradescription.h"
#include "describeddevice.h"
#include "literal.h"

#include <algorithm>
#include <sstream>
#include <unordered_map>

namespace ZetoAravis {
namespace {

/// What every source has: its place in the description, and access as the description states it.
template <class Kind>
class Described : public Kind
{
public:
    Described(DescribedDevice& device, int index)
        : m_device(device)
        , m_index(index)
        , m_accessModeCacheable(device.isAccessModeCacheable(index))
    {
    }

    void attach(ZetoNodeMap::Node& node) override { m_device.setNode(m_index, node); }
    GenApi::EAccessMode accessMode() override { return states().accessMode(m_index); }
    bool isAccessModeCacheable() const override { return m_accessModeCacheable; }

protected:
    DescribedDevice& device() const { return m_device; }
    NodeValues& values() const { return m_device.values(); }
    const NodeStates& states() const { return m_device.states(); }
    const DescriptionNode& stated() const { return m_device.description().node(m_index); }
    int index() const { return m_index; }

private:
    DescribedDevice& m_device;
    int m_index;
    bool m_accessModeCacheable;
};

/// The values of a list like "1;2;4", ascending.
template <class Parse>
auto validSet(const DescriptionNode& node, Parse parse)
{
    std::vector<decltype(parse(""))> values;
    std::istringstream texts(node.text("ValidValueSet"));
    for (std::string text; std::getline(texts >> std::ws, text, ';');)
        values.push_back(parse(text.substr(0, text.find_last_not_of(" \t\r\n") + 1)));
    std::sort(values.begin(), values.end());
    return values;
}

class DescribedInteger : public Described<ZetoNodeMap::IntegerSource>
{
public:
    using Described::Described;

    std::int64_t min() override { return states().min(index()); }
    std::int64_t max() override { return states().max(index()); }
    std::int64_t inc() override { return states().inc(index()); }
    std::vector<std::int64_t> validValues() override { return validSet(stated(), integerLiteral); }
    std::int64_t read() override { return values().integer(index()); }

    void write(const std::int64_t& value) override
    {
        device().setInteger(index(), value);
        device().writeCopies(index(), value);
        device().noteWritten(index());
    }
};

class DescribedFloat : public Described<ZetoNodeMap::FloatSource>
{
public:
    using Described::Described;

    double min() override { return states().realMin(index()); }
    double max() override { return states().realMax(index()); }
    std::optional<double> inc() override { return states().realInc(index()); }
    std::vector<double> validValues() override { return validSet(stated(), realLiteral); }
    double read() override { return values().real(index()); }

    void write(const double& value) override
    {
        values().setReal(index(), value);
        device().writeCopies(index(), value);
        device().noteWritten(index());
    }
};

class DescribedString : public Described<ZetoNodeMap::StringSource>
{
public:
    using Described::Described;

    std::int64_t maxLength() override { return values().maximumLength(index()); }
    std::string read() override { return values().text(index()); }

    void write(const std::string& value) override
    {
        values().setText(index(), value);
        device().noteWritten(index());
    }
};

class DescribedEnumeration : public Described<ZetoNodeMap::EnumerationSource>
{
public:
    DescribedEnumeration(DescribedDevice& device, int index)
        : Described(device, index)
    {
        for (const int entry : device.description().entries(index))
            m_entries.emplace(device.description().node(entry).value(), entry);
    }

    GenApi::EAccessMode entryAccessMode(std::int64_t value) override
    {
        const auto entry = m_entries.find(value);
        return entry == m_entries.end() ? GenApi::NI : states().accessMode(entry->second);
    }

    std::int64_t read() override { return values().integer(index()); }

    void write(const std::int64_t& value) override
    {
        device().setInteger(index(), value);
        device().writeCopies(index(), value);
        device().noteWritten(index());
    }

private:
    std::unordered_map<std::int64_t, int> m_entries; // the first of each value
};

class DescribedBoolean : public Described<ZetoNodeMap::BooleanSource>
{
public:
    using Described::Described;

    bool read() override { return values().integer(index()) != 0; }

    void write(const bool& value) override
    {
        device().setInteger(index(), value ? 1 : 0);
        device().writeCopies(index(), value ? number("OnValue", 1) : number("OffValue", 0));
        device().noteWritten(index());
    }

private:
    std::int64_t number(const char* tag, std::int64_t otherwise) const
    {
        return stated().has(tag) ? integerLiteral(stated().text(tag)) : otherwise;
    }
};

class DescribedCommand : public Described<ZetoNodeMap::CommandSource>
{
public:
    using Described::Described;

    void execute() override
    {
        values().execute(index());
        device().writeCopies(index(), commandValue());
        if (device().commandEnd() == DescribedDevice::CommandEnd::AtOnce && !isDone())
            values().setInteger(states().valueNode(index()), commandValue() == 0 ? 1 : 0);
        device().noteWritten(index());
    }

    /// A command whose value cannot be read back is done at once.
    bool isDone() override
    {
        const int target = states().valueNode(index());
        return target == CameraDescription::noNode || !GenApi::IsReadable(states().accessMode(target)) ||
               values().integer(target) != commandValue();
    }

private:
    std::int64_t commandValue() const
    {
        const Link* link = stated().link(LinkRole::CommandValue);
        return link && link->target != CameraDescription::noNode
                   ? values().integer(link->target)
                   : integerLiteral(stated().text("CommandValue"));
    }
};

class DescribedRegister : public Described<ZetoNodeMap::RegisterSource>
{
public:
    using Described::Described;

    std::int64_t length() override { return static_cast<std::int64_t>(values().length(index())); }
    std::int64_t address() override { return static_cast<std::int64_t>(values().address(index())); }
    std::vector<std::uint8_t> read() override { return values().bytes(index()); }

    void write(const std::vector<std::uint8_t>& bytes) override
    {
        values().setBytes(index(), bytes);
        device().noteWritten(index());
    }
};

} // namespace

std::unique_ptr<ZetoNodeMap::IntegerSource> makeIntegerSource(DescribedDevice& device, int index)
{
    return std::make_unique<DescribedInteger>(device, index);
}

std::unique_ptr<ZetoNodeMap::FloatSource> makeFloatSource(DescribedDevice& device, int index)
{
    return std::make_unique<DescribedFloat>(device, index);
}

std::unique_ptr<ZetoNodeMap::StringSource> makeStringSource(DescribedDevice& device, int index)
{
    return std::make_unique<DescribedString>(device, index);
}

std::unique_ptr<ZetoNodeMap::EnumerationSource> makeEnumerationSource(DescribedDevice& device, int index)
{
    return std::make_unique<DescribedEnumeration>(device, index);
}

std::unique_ptr<ZetoNodeMap::BooleanSource> makeBooleanSource(DescribedDevice& device, int index)
{
    return std::make_unique<DescribedBoolean>(device, index);
}

std::unique_ptr<ZetoNodeMap::CommandSource> makeCommandSource(DescribedDevice& device, int index)
{
    return std::make_unique<DescribedCommand>(device, index);
}

std::unique_ptr<ZetoNodeMap::RegisterSource> makeRegisterSource(DescribedDevice& device, int index)
{
    return std::make_unique<DescribedRegister>(device, index);
}

} // namespace ZetoAravis
