#include "source.h"

namespace ZetoNodeMap {

Source::~Source() = default;

void Source::attach(Node&)
{
}

GenApi::EAccessMode Source::accessMode()
{
    return GenApi::RW;
}

bool Source::isAccessModeCacheable() const
{
    return false;
}

} // namespace ZetoNodeMap
