#pragma once

#include "nodeparam.h"

#include <memory>
#include <unordered_map>

namespace ZetoGenParam {

class EnumEntryParam;

/// The parameters of a GenApi node map. Each is made when it is first asked for and kept. The node map must
/// outlive the array.
class NodeMapArray final : public Array
{
public:
    explicit NodeMapArray(GENAPI_NAMESPACE::INodeMap& nodeMap);
    ~NodeMapArray() override;

    Param* GetParam(const char* name, int32_t* error) override;
    Enum* GetEnum(const char* name, int32_t* error) override;
    Int* GetInt(const char* name, int32_t* error) override;
    Float* GetFloat(const char* name, int32_t* error) override;
    Boolean* GetBoolean(const char* name, int32_t* error) override;
    String* GetString(const char* name, int32_t* error) override;
    Command* GetCommand(const char* name, int32_t* error) override;
    GENAPI_NAMESPACE::INodeMap* GetNodeMap(uint32_t index) override;

private:
    template <typename Kind>
    Kind* get(const char* name, int32_t* error);
    NodeParam* paramOf(GENAPI_NAMESPACE::INode& node);
    std::unique_ptr<NodeParam> makeParam(GENAPI_NAMESPACE::INode& node);
    std::vector<EnumEntryParam*> entriesOf(GENAPI_NAMESPACE::IEnumeration& enumeration);

    GENAPI_NAMESPACE::INodeMap& m_nodeMap;
    std::unordered_map<GENAPI_NAMESPACE::INode*, std::unique_ptr<NodeParam>>
        m_params; ///< guarded by the map's lock
};

} // namespace ZetoGenParam
