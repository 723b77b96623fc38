#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace ZetoNodeMap {

class NodeMap;

/// The value of the node \a name as its camera sees it: no access check.
int64_t valueOf(const NodeMap& map, const std::string& name, int64_t*);
double valueOf(const NodeMap& map, const std::string& name, double*);
bool valueOf(const NodeMap& map, const std::string& name, bool*);

/// Turns a callable with or without the node map as its argument into one that takes it.
template <class Function>
auto takingMap(Function function)
{
    if constexpr (std::is_invocable_v<Function, const NodeMap&>) {
        return function;
    } else {
        return [function = std::move(function)](const NodeMap&) { return function(); };
    }
}

/// A limit, increment or condition of a node: a constant, the value of another node or a function.
///
///     b.integer("OffsetX").limits(0, "OffsetMax").lockedIf("TLParamsLocked");
///     b.integer("OffsetX").limits(0, [](const NodeMap& map) { return 4096 - map.integer("Width"); })
///         .invalidatedBy({"Width"});
///
/// Naming a node makes the owner depend on it. What a bare function looks at is not known: name it with
/// computedFrom() or invalidatedBy() if its changes are to be notified.
template <class T>
class Setting
{
public:
    template <class Number, std::enable_if_t<std::is_arithmetic_v<Number>, int> = 0>
    Setting(Number constant)
        : m_constant(static_cast<T>(constant))
    {
    }

    Setting(const char* nodeName)
        : Setting(std::string(nodeName))
    {
    }

    Setting(const std::string& nodeName)
        : m_formula(std::make_unique<Formula>(Formula{
              [nodeName](const NodeMap& map) { return valueOf(map, nodeName, static_cast<T*>(nullptr)); },
              {nodeName}}))
    {
    }

    template <class Function,
              std::enable_if_t<std::is_invocable_v<Function, const NodeMap&> || std::is_invocable_v<Function>,
                               int> = 0>
    Setting(Function function)
        : m_formula(std::make_unique<Formula>(Formula{takingMap(std::move(function)), {}}))
    {
    }

    T evaluate(const NodeMap& map) const { return m_formula ? m_formula->function(map) : m_constant; }

    /// The nodes it is computed from, as far as they are known.
    std::vector<std::string> inputs() const
    {
        return m_formula ? m_formula->inputs : std::vector<std::string>();
    }

    /// Whether it can change only when one of inputs() does.
    bool isTraceable() const { return !m_formula || !m_formula->inputs.empty(); }

    /// Declares what a function looks at.
    Setting&& computedFrom(const std::vector<std::string>& inputs) &&
    {
        m_formula->inputs = inputs;
        return std::move(*this);
    }

private:
    struct Formula
    {
        std::function<T(const NodeMap&)> function;
        std::vector<std::string> inputs;
    };

    T m_constant{};
    std::unique_ptr<Formula> m_formula;
};

/// A condition that holds while the enumeration \a node has the entry \a symbolic.
Setting<bool> isEntry(const std::string& node, const std::string& symbolic);

} // namespace ZetoNodeMap
