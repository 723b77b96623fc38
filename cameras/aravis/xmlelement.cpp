#include "xmlelement.h"

#include <libxml/parser.h>
#include <libxml/tree.h>

#include <algorithm>
#include <climits>
#include <memory>
#include <stdexcept>

namespace ZetoAravis {
namespace {

struct DocumentDeleter
{
    void operator()(xmlDoc* document) const { xmlFreeDoc(document); }
};

struct ContextDeleter
{
    void operator()(xmlParserCtxt* context) const { xmlFreeParserCtxt(context); }
};

using DocumentPointer = std::unique_ptr<xmlDoc, DocumentDeleter>;
using ContextPointer = std::unique_ptr<xmlParserCtxt, ContextDeleter>;

std::string toString(const xmlChar* text)
{
    return text ? reinterpret_cast<const char*>(text) : std::string();
}

std::string trimmed(const std::string& text)
{
    constexpr const char* whiteSpace = " \t\r\n";
    const std::size_t first = text.find_first_not_of(whiteSpace);
    return first == std::string::npos ? std::string()
                                      : text.substr(first, text.find_last_not_of(whiteSpace) - first + 1);
}

std::string attributeText(const xmlAttr& attribute)
{
    const std::unique_ptr<xmlChar, void (*)(void*)> text(
        xmlNodeListGetString(attribute.doc, attribute.children, 1), xmlFree);
    return toString(text.get());
}

XmlElement toElement(const xmlNode& node)
{
    XmlElement element;
    element.name = toString(node.name);
    for (const xmlAttr* attribute = node.properties; attribute; attribute = attribute->next)
        element.attributes.emplace_back(toString(attribute->name), attributeText(*attribute));
    for (const xmlNode* child = node.children; child; child = child->next) {
        if (child->type == XML_ELEMENT_NODE)
            element.children.push_back(toElement(*child));
        else if (child->type == XML_TEXT_NODE || child->type == XML_CDATA_SECTION_NODE)
            element.text += toString(child->content);
    }
    element.text = trimmed(element.text);
    return element;
}

std::string parserMessage(const xmlParserCtxt& context)
{
    const xmlError& error = context.lastError;
    return "line " + std::to_string(error.line) + ": " +
           (error.message ? trimmed(error.message) : std::string("not an XML document"));
}

void appendEscaped(std::string& out, const std::string& text)
{
    for (const char c : text) {
        switch (c) {
        case '<':
            out += "&lt;";
            break;
        case '>':
            out += "&gt;";
            break;
        case '&':
            out += "&amp;";
            break;
        case '"':
            out += "&quot;";
            break;
        default:
            out += c;
        }
    }
}

void appendElement(std::string& out, const XmlElement& element)
{
    out += '<' + element.name;
    for (const auto& [name, value] : element.attributes) {
        out += ' ' + name + "=\"";
        appendEscaped(out, value);
        out += '"';
    }
    out += '>';
    appendEscaped(out, element.text);
    for (const XmlElement& child : element.children)
        appendElement(out, child);
    out += "</" + element.name + '>';
}

} // namespace

std::string XmlElement::attribute(std::string_view attributeName) const
{
    const auto found = std::find_if(attributes.begin(), attributes.end(),
                                    [&](const auto& attribute) { return attribute.first == attributeName; });
    return found == attributes.end() ? std::string() : found->second;
}

const XmlElement* XmlElement::child(std::string_view childName) const
{
    const auto found = std::find_if(children.begin(), children.end(),
                                    [&](const XmlElement& child) { return child.name == childName; });
    return found == children.end() ? nullptr : &*found;
}

std::string XmlElement::childText(std::string_view childName) const
{
    const XmlElement* found = child(childName);
    return found ? found->text : std::string();
}

XmlElement parseXml(std::string_view bytes)
{
    if (bytes.size() > INT_MAX)
        throw std::runtime_error("the document is too large");
    const ContextPointer context(xmlNewParserCtxt());
    const DocumentPointer document(
        xmlCtxtReadMemory(context.get(), bytes.data(), static_cast<int>(bytes.size()), nullptr, nullptr,
                          XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING));
    const xmlNode* root = document ? xmlDocGetRootElement(document.get()) : nullptr;
    if (!root)
        throw std::runtime_error(parserMessage(*context));
    return toElement(*root);
}

std::string toXml(const XmlElement& root)
{
    std::string out = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
    appendElement(out, root);
    return out;
}

} // namespace ZetoAravis
