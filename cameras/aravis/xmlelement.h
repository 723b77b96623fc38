#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace ZetoAravis {

/// An element of an XML document as a plain value. Comments and processing instructions are dropped.
struct XmlElement
{
    std::string name; ///< without a prefix
    std::vector<std::pair<std::string, std::string>> attributes;
    std::string text; ///< the characters directly inside, without the white space around them, in UTF-8
    std::vector<XmlElement> children;

    /// \return the attribute's value, empty when there is none.
    std::string attribute(std::string_view attributeName) const;
    /// \return the first child of that name, null when there is none.
    const XmlElement* child(std::string_view childName) const;
    /// \return the text of the first child of that name, empty when there is none.
    std::string childText(std::string_view childName) const;
};

/// Parses a whole document. No entity of a document type is expanded and nothing is fetched.
/// \throws std::runtime_error with the line and the parser's reason when \a bytes is not well-formed XML.
XmlElement parseXml(std::string_view bytes);

/// The document of which \a root is the root element, in UTF-8.
std::string toXml(const XmlElement& root);

} // namespace ZetoAravis
