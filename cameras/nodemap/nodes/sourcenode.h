#pragma once

#include "valuenode.h"

#include <memory>
#include <optional>
#include <utility>

namespace ZetoNodeMap {

/// A node whose value comes from a source: access checks and caching.
template <class Interface, class SourceType>
class SourceNode : public ValueNode<Interface>
{
public:
    using ValueNode<Interface>::operator=;

protected:
    using Value = typename SourceType::Value;

    SourceNode(NodeMap& map, NodeDeclaration&& declaration, GenApi::EInterfaceType type,
               std::unique_ptr<SourceType> source)
        : ValueNode<Interface>(map, std::move(declaration), type)
        , m_source(std::move(source))
    {
        m_source->attach(*this);
        this->setDefaultCachingMode(m_source->defaultCachingMode());
    }

    SourceType& source() const { return *m_source; }

    /// The value without checks, from the cache if \a fresh does not forbid it.
    const Value& cachedValue(bool fresh = false) const
    {
        if (m_cacheValid && !fresh)
            return m_cache;
        m_cache = m_source->read();
        m_cacheValid = GenApi::IsCacheable(this->info().cachingMode);
        return m_cache;
    }

    const Value& readValue(bool verify, bool ignoreCache) const
    {
        this->requireReadable();
        return cachedValue(verify || ignoreCache);
    }

    /// Writes without checks and marks what depends on the value.
    void writeValue(const Value& value)
    {
        m_cacheValid = false;
        m_source->write(value);
        this->invalidate();
        if (this->info().cachingMode != GenApi::WriteThrough)
            return;
        m_cache = value;
        m_cacheValid = true;
    }

    void storeValue(const Value& value)
    {
        m_source->store(value);
        this->invalidate();
    }

    bool isValueCached() const override { return m_cacheValid; }
    void dropCache() override { m_cacheValid = false; }
    GenApi::EAccessMode sourceAccessMode() const override { return m_source->accessMode(); }
    bool isSourceAccessModeCacheable() const override { return m_source->isAccessModeCacheable(); }

private:
    std::unique_ptr<SourceType> m_source;
    mutable Value m_cache{};
    mutable bool m_cacheValid = false;
};

} // namespace ZetoNodeMap
