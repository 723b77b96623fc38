#include "limitvariables.h"

#include "cameradescription.h"

#include <algorithm>
#include <cctype>
#include <optional>

namespace ZetoAravis {
namespace {

constexpr int noNode = CameraDescription::noNode;

/// What stands for such a variable: another element of the formula.
struct Substitute
{
    const char* tag;
    std::string text;
};

bool isPartOfName(char c)
{
    return std::isalnum(static_cast<unsigned char>(c)) || c == '_' || c == '.';
}

void replaceName(std::string& text, const std::string& name, const std::string& replacement)
{
    for (auto at = text.find(name); at != std::string::npos; at = text.find(name, at + 1)) {
        const auto end = at + name.size();
        if ((at == 0 || !isPartOfName(text[at - 1])) && (end == text.size() || !isPartOfName(text[end])))
            text.replace(at, name.size(), replacement);
    }
}

/// The nearest statement of \a limit (Min, Max, Inc) down the node's values.
std::optional<Substitute> limitOf(const CameraDescription& description, int index, const std::string& limit)
{
    const auto mostSteps = description.nodes().size(); // the values may still lead in a circle
    for (std::size_t step = 0; index != noNode && step < mostSteps; ++step) {
        const DescriptionNode& node = description.node(index);
        if (node.has("p" + limit))
            return Substitute{"pVariable", node.text("p" + limit)};
        if (node.has(limit))
            return Substitute{"Constant", node.text(limit)};
        index = description.find(node.text("pValue"));
    }
    return std::nullopt;
}

std::optional<Substitute> entryValue(const CameraDescription& description, int enumeration,
                                     const std::string& symbolic)
{
    for (const int entry : description.entries(enumeration)) {
        if (description.node(entry).symbolic() == symbolic)
            return Substitute{"Constant", description.node(entry).text("Value")};
    }
    return std::nullopt;
}

std::optional<Substitute> substituteFor(const CameraDescription& description, const XmlElement& variable,
                                        const std::string& suffix)
{
    constexpr std::string_view entryPrefix = "Entry.";
    const int target = description.find(variable.text);
    if (suffix == "Value")
        return Substitute{"pVariable", variable.text};
    if (suffix.compare(0, entryPrefix.size(), entryPrefix) == 0)
        return entryValue(description, target, suffix.substr(entryPrefix.size()));
    const bool isLimit = suffix == "Min" || suffix == "Max" || suffix == "Inc";
    return isLimit ? limitOf(description, target, suffix) : std::nullopt;
}

void rename(XmlElement& formula, XmlElement& variable, const std::string& name)
{
    std::string plainName = name;
    std::replace(plainName.begin(), plainName.end(), '.', '_');
    for (auto& [attribute, value] : variable.attributes) {
        if (attribute == "Name")
            value = plainName;
    }
    for (XmlElement& child : formula.children) {
        if (child.name.rfind("Formula", 0) == 0 || child.name == "Expression")
            replaceName(child.text, name, plainName);
    }
}

} // namespace

std::vector<std::string> settleLimitVariables(const CameraDescription& description, XmlElement& formula)
{
    std::vector<std::string> unsettled;
    for (XmlElement& child : formula.children) {
        const std::string name = child.name == "pVariable" ? child.attribute("Name") : std::string();
        const auto dot = name.find('.');
        if (dot == std::string::npos)
            continue;
        const auto substitute = substituteFor(description, child, name.substr(dot + 1));
        if (!substitute) {
            unsettled.push_back(name);
            continue;
        }
        child.name = substitute->tag;
        child.text = substitute->text;
        rename(formula, child, name);
    }
    return unsettled;
}

} // namespace ZetoAravis
