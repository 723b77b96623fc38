#pragma once

#include <ZetoCameraApi.h>

#include <memory>
#include <utility>
#include <vector>

namespace ZetoCameraLibrary {

/// A list handed to a caller, who frees it with Release(). The elements are not owned.
template <typename T>
class VectorList final : public ZetoCam::List<T>
{
public:
    /// A new list, owned by whoever releases it.
    static ZetoCam::List<T>* make(std::vector<T*> elements)
    {
        return std::unique_ptr<VectorList>(new VectorList(std::move(elements))).release();
    }

    void Release() override { const std::unique_ptr<VectorList> self(this); }
    uint64_t GetCount() override { return m_elements.size(); }

    T* GetFirst() override
    {
        m_next = 0;
        return next();
    }

    T* GetNext() override { return m_next == 0 ? nullptr : next(); }

private:
    explicit VectorList(std::vector<T*> elements)
        : m_elements(std::move(elements))
    {
    }

    T* next() { return m_next < m_elements.size() ? m_elements[m_next++] : nullptr; }

    const std::vector<T*> m_elements;
    std::size_t m_next = 0;
};

} // namespace ZetoCameraLibrary
