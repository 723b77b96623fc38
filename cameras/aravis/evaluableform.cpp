#include "evaluableform.h"

#include "cameradescription.h"

#include <algorithm>
#include <set>

namespace ZetoAravis {
namespace {

constexpr const char* conditionPrefix = "ZetoIsOn_"; // 1 while the boolean is on, for formulas
constexpr const char* storagePrefix = "ZetoStored_"; // what a boolean holds that states its value itself

XmlElement makeElement(const std::string& tag, const std::string& text)
{
    return {tag, {}, text, {}};
}

XmlElement makeNode(const std::string& tag, const std::string& name, std::vector<XmlElement> properties)
{
    return {tag, {{"Name", name}}, {}, std::move(properties)};
}

XmlElement makeCondition(const DescriptionNode& boolean)
{
    const std::string holder = boolean.has("pValue") ? boolean.text("pValue") : storagePrefix + boolean.name;
    const std::string onValue = boolean.has("OnValue") ? boolean.text("OnValue") : "1";
    XmlElement variable = makeElement("pVariable", holder);
    variable.attributes.emplace_back("Name", "VALUE");
    return makeNode("IntSwissKnife", conditionPrefix + boolean.name,
                    {variable, makeElement("Formula", "(VALUE = " + onValue + ") ? 1 : 0")});
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
        for (XmlElement& child : element.children)
            rewrite(child);
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

    const CameraDescription& m_description;
    std::set<int> m_inFormulas;
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
