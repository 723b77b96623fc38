#include "entry.h"

namespace ZetoNodeMap {

Entry::Entry(std::string symbolic, int64_t value)
    : Entry(std::make_unique<Declaration>())
{
    m_declaration->settings.symbolic = std::move(symbolic);
    m_declaration->settings.value = value;
    m_declaration->settings.numericValue = static_cast<double>(value);
}

Entry::Entry(std::unique_ptr<Declaration> declaration)
    : FeatureBuilder(*declaration)
    , m_declaration(std::move(declaration))
{
}

Entry& Entry::clearsTo(int64_t next)
{
    m_declaration->next = next;
    return selfClearing();
}

} // namespace ZetoNodeMap
