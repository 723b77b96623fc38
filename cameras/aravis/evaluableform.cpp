#include "evaluableform.h"

#include "cameradescription.h"

#include <algorithm>
#include <set>

namespace ZetoAravis {
namespace {

constexpr const char* conditionPrefix = "ZetoIsOn_"; // 1 while the boolean is on, for formulas
constexpr const char* lengthPrefix = "ZetoLength_";  // a length of registers, within what they can have
constexpr const char* storagePrefix = "ZetoStored_"; // what a boolean holds that states its value itself

XmlElement makeElement(const std::string& tag, const std::string& text)
{
    return {tag, {}, text, {}};
}

XmlElement makeNode(const std::string& tag, const std::string& name, std::vector<XmlElement> properties)
{
    return {tag, {{"Name", name}}, {}, std::move(properties)};
}

/// The integer \a name that is computed from the node \a source, VALUE in the \a formula.
XmlElement makeFormula(const std::string& name, const std::string& source, const std::string& formula)
{
    XmlElement variable = makeElement("pVariable", source);
    variable.attributes.emplace_back("Name", "VALUE");
    return makeNode("IntSwissKnife", name, {variable, makeElement("Formula", formula)});
}

XmlElement makeCondition(const DescriptionNode& boolean)
{
    const std::string holder = boolean.has("pValue") ? boolean.text("pValue") : storagePrefix + boolean.name;
    const std::string onValue = boolean.has("OnValue") ? boolean.text("OnValue") : "1";
    return makeFormula(conditionPrefix + boolean.name, holder, "(VALUE = " + onValue + ") ? 1 : 0");
}

XmlElement makeLength(const std::string& name, const std::string& source, std::int64_t greatest)
{
    const std::string most = std::to_string(greatest);
    return makeFormula(name, source, "(VALUE < 1) ? 1 : ((VALUE > " + most + ") ? " + most + " : VALUE)");
}

class Rewriter
{
public:
    explicit Rewriter(const CameraDescription& description)
        : m_description(description)
    {
    }

    void rewrite(XmlElement& element)
    {
        if (element.name == "EnumEntry")
            dropConditions(element);
        else if (element.name == "Boolean")
            moveValueOut(element);
        else if (element.name == "pVariable")
            replaceBoolean(element);
        for (XmlElement& child : element.children) {
            if (child.name == "pLength")
                boundLength(child, greatestLength(element.name));
            rewrite(child);
        }
    }

    void appendHelpersTo(XmlElement& root)
    {
        for (const int boolean : m_inFormulas)
            m_helpers.push_back(makeCondition(m_description.node(boolean)));
        root.children.insert(root.children.end(), m_helpers.begin(), m_helpers.end());
    }

private:
    static void dropConditions(XmlElement& entry)
    {
        const auto isCondition = [](const XmlElement& child) { return child.name.rfind("pIs", 0) == 0; };
        auto& children = entry.children;
        children.erase(std::remove_if(children.begin(), children.end(), isCondition), children.end());
    }

    void moveValueOut(XmlElement& boolean)
    {
        for (XmlElement& child : boolean.children) {
            if (child.name != "Value")
                continue;
            const std::string storage = storagePrefix + boolean.attribute("Name");
            m_helpers.push_back(makeNode("Integer", storage, {child}));
            child = makeElement("pValue", storage);
        }
    }

    void replaceBoolean(XmlElement& variable)
    {
        const int target = m_description.find(variable.text);
        if (target == CameraDescription::noNode || m_description.node(target).kind != NodeKind::Boolean)
            return;
        m_inFormulas.insert(target);
        variable.text.insert(0, conditionPrefix);
    }

    void boundLength(XmlElement& length, std::int64_t greatest)
    {
        if (m_description.find(length.text) == CameraDescription::noNode)
            return;
        const std::string name = lengthPrefix + std::to_string(greatest) + '_' + length.text;
        if (m_lengths.insert(name).second)
            m_helpers.push_back(makeLength(name, length.text, greatest));
        length.text = name;
    }

    const CameraDescription& m_description;
    std::set<int> m_inFormulas;
    std::set<std::string> m_lengths;
    std::vector<XmlElement> m_helpers;
};

} // namespace

std::string evaluableForm(const CameraDescription& description)
{
    XmlElement root = description.root();
    Rewriter rewriter(description);
    rewriter.rewrite(root);
    rewriter.appendHelpersTo(root);
    return toXml(root);
}

} // namespace ZetoAravis
