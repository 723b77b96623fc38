#pragma once

#include "booleanbuilder.h"
#include "categorybuilder.h"
#include "commandbuilder.h"
#include "enumerationbuilder.h"
#include "floatbuilder.h"
#include "integerbuilder.h"
#include "nodemap.h"
#include "plainbuilder.h"
#include "registerbuilder.h"
#include "stringbuilder.h"

#include <memory>
#include <string>
#include <vector>

namespace ZetoNodeMap {

/// Declares the features of a camera, one readable expression each, and makes the node map.
///
///     NodeMapBuilder b;
///     b.category("Root").contains("ImageFormat", "Analog");
///     b.category("ImageFormat").displayName("Image Format");
///     b.category("Analog");
///     b.integer("Width").in("ImageFormat").unit("px").limits(16, 4096).increment(4).value(640);
///     b.enumeration("GainAuto").in("Analog").entries({"Off", "Continuous"});
///     b.floating("Gain").in("Analog").unit("dB").limits(0, 24).lockedIf(isEntry("GainAuto", "Continuous"));
///     std::unique_ptr<NodeMap> map = b.build();
///
/// Nodes refer to each other by name, in any order. Nothing here is thread-safe.
class NodeMapBuilder
{
public:
    /// What build() does about names that no node has.
    enum class MissingNodes
    {
        Refuse, ///< throws std::invalid_argument with all of them
        Skip    ///< leaves the reference out, as for a broken description
    };

    explicit NodeMapBuilder(std::string deviceName = "Device");
    ~NodeMapBuilder();
    NodeMapBuilder(const NodeMapBuilder&) = delete;
    NodeMapBuilder& operator=(const NodeMapBuilder&) = delete;

    CategoryBuilder category(const std::string& name);
    IntegerBuilder integer(const std::string& name);
    FloatBuilder floating(const std::string& name);
    BooleanBuilder boolean(const std::string& name);
    EnumerationBuilder enumeration(const std::string& name);
    CommandBuilder command(const std::string& name);
    StringBuilder string(const std::string& name);
    RegisterBuilder bytes(const std::string& name);
    PlainBuilder node(const std::string& name);
    PlainBuilder port(const std::string& name);

    /// Makes the node map of everything declared, once; the builder is empty afterwards. Two nodes of one
    /// name throw std::invalid_argument.
    std::unique_ptr<NodeMap> build(MissingNodes missing = MissingNodes::Refuse);

private:
    friend class EnumerationBuilder;

    template <class Declaration>
    Declaration& declare(const std::string& name);
    void add(std::unique_ptr<NodeDeclaration> declaration);

    std::string m_deviceName;
    std::vector<std::unique_ptr<NodeDeclaration>> m_declarations;
};

} // namespace ZetoNodeMap
