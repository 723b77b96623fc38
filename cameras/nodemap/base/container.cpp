#include "elementvector.h"

#include <GenApi/Container.h>

namespace GENICAM_NAMESPACE {

template class element_vector<GENAPI_NAMESPACE::INode*,
                              GENAPI_NAMESPACE::pointer_iterator<GENAPI_NAMESPACE::INode>,
                              GENAPI_NAMESPACE::pointer_const_iterator<GENAPI_NAMESPACE::INode>>;
template class element_vector<GENAPI_NAMESPACE::IValue*,
                              GENAPI_NAMESPACE::pointer_iterator<GENAPI_NAMESPACE::IValue>,
                              GENAPI_NAMESPACE::pointer_const_iterator<GENAPI_NAMESPACE::IValue>>;

} // namespace GENICAM_NAMESPACE

namespace GENAPI_NAMESPACE {

node_vector::node_vector()
    : element_vector(0, nullptr)
{
}

node_vector::node_vector(size_t count)
    : element_vector(count, nullptr)
{
}

node_vector::node_vector(const node_vector& other) = default;

node_vector::~node_vector() = default;

node_vector& node_vector::operator=(const node_vector& other) = default;

void node_vector::resize(size_t count)
{
    resizeTo(count, nullptr);
}

value_vector::value_vector()
    : element_vector(0, nullptr)
{
}

value_vector::value_vector(size_t count)
    : element_vector(count, nullptr)
{
}

value_vector::value_vector(const value_vector& other) = default;

value_vector::~value_vector() = default;

value_vector& value_vector::operator=(const value_vector& other) = default;

void value_vector::resize(size_t count, IValue* const& value)
{
    resizeTo(count, value);
}

} // namespace GENAPI_NAMESPACE
