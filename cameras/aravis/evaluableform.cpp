#include "evaluableform.h"

#include "cameradescription.h"

#include <algorithm>
#include <set>

namespace ZetoAravis {
namespace {

constexpr const char* helperPrefix = "ZetoBoolean_";

XmlElement makeElement(const std::string& name, const std::string& text)
{
    return {name, {}, text, {}};
}

std::string textOr(const DescriptionNode& node, const char* tag, const char* fallback)
{
    return node.has(tag) ? node.text(tag) : std::string(fallback);
}

/// An integer that is 1 while the boolean is on.
XmlElement makeHelper(const DescriptionNode& boolean)
{
    XmlElement variable = makeElement("pVariable", boolean.text("pValue"));
    variable.attributes.emplace_back("Name", "VALUE");
    XmlElement helper = makeElement("IntSwissKnife", {});
    helper.attributes.emplace_back("Name", helperPrefix + boolean.name);
    helper.children = {variable,
                       makeElement("Formula", "(VALUE = " + textOr(boolean, "OnValue", "1") + ") ? 1 : 0")};
    return helper;
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
        if (element.name == "pVariable")
            replaceBoolean(element);
        for (XmlElement& child : element.children)
            rewrite(child);
    }

    void appendHelpersTo(XmlElement& root) const
    {
        for (const int boolean : m_booleans)
            root.children.push_back(makeHelper(m_description.node(boolean)));
    }

private:
    static void dropConditions(XmlElement& entry)
    {
        const auto isCondition = [](const XmlElement& child) { return child.name.rfind("pIs", 0) == 0; };
        auto& children = entry.children;
        children.erase(std::remove_if(children.begin(), children.end(), isCondition), children.end());
    }

    void replaceBoolean(XmlElement& variable)
    {
        const int target = m_description.find(variable.text);
        if (target == CameraDescription::noNode)
            return;
        const DescriptionNode& node = m_description.node(target);
        if (node.kind != NodeKind::Boolean || !node.has("pValue"))
            return;
        m_booleans.insert(target);
        variable.text = helperPrefix + node.name;
    }

    const CameraDescription& m_description;
    std::set<int> m_booleans;
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
