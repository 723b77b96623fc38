#include "memoryseed.h"

#include "cameradescription.h"
#include "literal.h"
#include "nodestates.h"
#include "nodevalues.h"

#include <algorithm>
#include <set>

namespace ZetoAravis {
namespace {

constexpr int noNode = CameraDescription::noNode;
constexpr std::int64_t integerRoom = 4095;
constexpr double floatRoom = 1000;

/// Runs \a action; \return what it returns, \a otherwise where the device or the description fails.
template <class Result, class Action>
Result attempt(Result otherwise, Action action)
{
    try {
        return action();
    } catch (const GenICam::GenericException&) {
        return otherwise;
    }
}

class Seeder
{
public:
    Seeder(const CameraDescription& description, NodeValues& values, const NodeStates& states)
        : m_description(description)
        , m_values(values)
        , m_states(states)
    {
    }

    void seedConditions()
    {
        forEachLink([this](int, const Link& link) {
            if (link.role == LinkRole::Implemented || link.role == LinkRole::Available)
                adjust(link.target, [&] { return m_values.integer(link.target) != 0; });
            else if (link.role == LinkRole::Locked)
                adjust(link.target, [&] { return m_values.integer(link.target) == 0; });
        });
    }

    void seedLimits()
    {
        forEachLink([this](int owner, const Link& link) {
            const bool isFloat = m_description.node(owner).kind == NodeKind::Float;
            if (link.role == LinkRole::Inc)
                adjust(link.target, [&] { return m_values.real(link.target) > 0; });
            else if (link.role == LinkRole::Max && isFloat)
                raise(link.target, m_states.realMin(owner), floatRoom);
            else if (link.role == LinkRole::Max)
                raise(link.target, static_cast<double>(m_states.min(owner)), integerRoom);
        });
    }

    void seedFeatures()
    {
        for (const int feature : features()) {
            attempt(false, [&] {
                if (GenApi::IsWritable(m_states.accessMode(feature)))
                    seedValue(feature);
                return true;
            });
        }
    }

    void seedNames()
    {
        seedName("DeviceVendorName", "VendorName");
        seedName("DeviceModelName", "ModelName");
    }

private:
    template <class Visitor>
    void forEachLink(Visitor visit)
    {
        for (int node = 0; node < static_cast<int>(m_description.nodes().size()); ++node) {
            for (const Link& link : m_description.node(node).links) {
                if (link.target == noNode)
                    continue;
                attempt(false, [&] {
                    visit(node, link);
                    return true;
                });
            }
        }
    }

    /// The registers that the value of \a node is computed from and that only the device itself writes.
    std::vector<int> deviceMemoryBelow(int node) const
    {
        std::vector<int> memory;
        std::vector<int> pending{node};
        std::set<int> seen;
        while (!pending.empty()) {
            const int current = pending.back();
            pending.pop_back();
            if (!seen.insert(current).second)
                continue;
            const DescriptionNode& stated = m_description.node(current);
            if (stated.isRegister() && stated.kind != NodeKind::String &&
                m_states.accessMode(current) == GenApi::RO)
                memory.push_back(current);
            for (const Link& link : stated.links) {
                const bool isRead = link.role == LinkRole::Value || link.role == LinkRole::Variable;
                if (isRead && link.target != noNode)
                    pending.push_back(link.target);
            }
        }
        return memory;
    }

    /// Tries few values in the device's memory below \a node until \a isRight, one register after the other,
    /// then in all together; leaves everything as it was if none helps.
    template <class Predicate>
    void adjust(int node, Predicate isRight)
    {
        if (isRight())
            return;
        const std::vector<int> memory = deviceMemoryBelow(node);
        for (const int cell : memory) {
            if (tryIn({cell}, isRight))
                return;
        }
        tryIn(memory, isRight);
    }

    template <class Predicate>
    bool tryIn(const std::vector<int>& cells, Predicate isRight)
    {
        std::vector<std::int64_t> before(cells.size());
        std::transform(cells.begin(), cells.end(), before.begin(),
                       [this](int cell) { return m_values.integer(cell); });
        for (const bool full : {false, true}) {
            for (const int cell : cells)
                m_values.setInteger(cell, full ? m_states.max(cell) : 1);
            if (attempt(false, isRight))
                return true;
        }
        for (std::size_t i = 0; i < cells.size(); ++i)
            m_values.setInteger(cells[i], before[i]);
        return false;
    }

    /// Gives the limit \a node some room above \a minimum if it leaves none.
    void raise(int node, double minimum, double room)
    {
        if (m_values.real(node) > minimum)
            return;
        for (const int cell : deviceMemoryBelow(node)) {
            const double before = m_values.real(cell);
            m_values.setReal(cell, std::min(minimum + room, m_states.realMax(cell)));
            if (m_values.real(node) > minimum)
                return;
            m_values.setReal(cell, before);
        }
    }

    std::set<int> features() const
    {
        std::set<int> found;
        for (const DescriptionNode& node : m_description.nodes()) {
            for (const Link& link : node.links) {
                if (link.role == LinkRole::Feature && link.target != noNode)
                    found.insert(link.target);
            }
        }
        return found;
    }

    void seedValue(int feature)
    {
        switch (m_description.node(feature).kind) {
        case NodeKind::Integer:
            return seedInteger(feature);
        case NodeKind::Float:
            return seedReal(feature);
        case NodeKind::Enumeration:
            return seedEnumeration(feature);
        default:
            return;
        }
    }

    void seedInteger(int feature)
    {
        const std::int64_t value = m_values.integer(feature);
        if (value < m_states.min(feature) || value > m_states.max(feature))
            m_values.setInteger(feature, m_states.min(feature));
    }

    void seedReal(int feature)
    {
        const double value = m_values.real(feature);
        if (!(value >= m_states.realMin(feature) && value <= m_states.realMax(feature)))
            m_values.setReal(feature, m_states.realMin(feature));
    }

    void seedEnumeration(int feature)
    {
        const std::int64_t value = m_values.integer(feature);
        const std::vector<int>& entries = m_description.entries(feature);
        const auto holdsIt = [&](int entry) { return m_description.node(entry).value() == value; };
        const auto isSelectable = [&](int entry) { return GenApi::IsAvailable(m_states.accessMode(entry)); };
        if (std::any_of(entries.begin(), entries.end(), holdsIt))
            return;
        const auto first = std::find_if(entries.begin(), entries.end(), isSelectable);
        if (first != entries.end())
            m_values.setInteger(feature, m_description.node(*first).value());
    }

    void seedName(const char* feature, const char* attribute)
    {
        const int node = m_description.find(feature);
        if (node == noNode || m_description.node(node).kind != NodeKind::String)
            return;
        attempt(false, [&] {
            if (m_values.text(node).empty())
                m_values.setText(node, m_description.root().attribute(attribute));
            return true;
        });
    }

    const CameraDescription& m_description;
    NodeValues& m_values;
    const NodeStates& m_states;
};

} // namespace

void seedMemory(const CameraDescription& description, NodeValues& values, const NodeStates& states)
{
    Seeder seeder(description, values, states);
    seeder.seedNames();
    seeder.seedConditions();
    seeder.seedLimits();
    seeder.seedFeatures();
}

} // namespace ZetoAravis
