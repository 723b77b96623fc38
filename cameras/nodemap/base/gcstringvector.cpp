#include "elementvector.h"

#include <Base/GCStringVector.h>

namespace GENICAM_NAMESPACE {

template class element_vector<gcstring, gcstring_iterator, gcstring_const_iterator>;

gcstring_vector::gcstring_vector()
    : element_vector(0, gcstring())
{
}

gcstring_vector::gcstring_vector(size_t count, const gcstring& value)
    : element_vector(count, value)
{
}

gcstring_vector::gcstring_vector(const gcstring_vector& other) = default;

gcstring_vector::~gcstring_vector() = default;

gcstring_vector& gcstring_vector::operator=(const gcstring_vector& other) = default;

void gcstring_vector::assign(const gcstring_vector& other)
{
    *this = other;
}

void gcstring_vector::resize(size_t count, const gcstring& value)
{
    resizeTo(count, value);
}

} // namespace GENICAM_NAMESPACE
