#pragma once

#include <GenApi/Types.h>

#include <iterator>

namespace GENAPI_NAMESPACE {

/// Walks over a list of borrowed objects of type \a I without changing it; works with all algorithms.
template <class I>
class GENAPI_DECL_ABSTRACT pointer_const_iterator
{
public:
    using iterator_category = std::random_access_iterator_tag;
    using value_type = I*;
    using difference_type = ptrdiff_t;
    using pointer = I* const*;
    using reference = I* const&;

    explicit pointer_const_iterator(I* const* pElement = nullptr)
        : m_pElement(const_cast<I**>(pElement))
    {
    }

    reference operator*() const { return *m_pElement; }
    reference operator[](ptrdiff_t n) const { return m_pElement[n]; }

    pointer_const_iterator& operator++() { return *this += 1; }
    pointer_const_iterator operator++(int) { return pointer_const_iterator(m_pElement++); }
    pointer_const_iterator& operator--() { return *this -= 1; }
    pointer_const_iterator operator--(int) { return pointer_const_iterator(m_pElement--); }
    pointer_const_iterator& operator+=(ptrdiff_t n)
    {
        m_pElement += n;
        return *this;
    }
    pointer_const_iterator& operator-=(ptrdiff_t n) { return *this += -n; }
    pointer_const_iterator operator+(ptrdiff_t n) const { return pointer_const_iterator(m_pElement + n); }
    pointer_const_iterator operator-(ptrdiff_t n) const { return pointer_const_iterator(m_pElement - n); }
    ptrdiff_t operator-(const pointer_const_iterator& other) const { return m_pElement - other.m_pElement; }

    bool operator==(const pointer_const_iterator& other) const { return m_pElement == other.m_pElement; }
    bool operator!=(const pointer_const_iterator& other) const { return m_pElement != other.m_pElement; }
    bool operator<(const pointer_const_iterator& other) const { return m_pElement < other.m_pElement; }
    bool operator>(const pointer_const_iterator& other) const { return m_pElement > other.m_pElement; }
    bool operator<=(const pointer_const_iterator& other) const { return m_pElement <= other.m_pElement; }
    bool operator>=(const pointer_const_iterator& other) const { return m_pElement >= other.m_pElement; }

protected:
    I** m_pElement;
};

/// Walks over a list of borrowed objects of type \a I.
template <class I>
class GENAPI_DECL_ABSTRACT pointer_iterator : public pointer_const_iterator<I>
{
    using Base = pointer_const_iterator<I>;

public:
    using pointer = I**;
    using reference = I*&;

    explicit pointer_iterator(I** pElement = nullptr)
        : Base(pElement)
    {
    }

    reference operator*() const { return *this->m_pElement; }
    reference operator[](ptrdiff_t n) const { return this->m_pElement[n]; }

    pointer_iterator& operator++() { return *this += 1; }
    pointer_iterator operator++(int) { return pointer_iterator(this->m_pElement++); }
    pointer_iterator& operator--() { return *this -= 1; }
    pointer_iterator operator--(int) { return pointer_iterator(this->m_pElement--); }
    pointer_iterator& operator+=(ptrdiff_t n)
    {
        this->m_pElement += n;
        return *this;
    }
    pointer_iterator& operator-=(ptrdiff_t n) { return *this += -n; }
    pointer_iterator operator+(ptrdiff_t n) const { return pointer_iterator(this->m_pElement + n); }
    pointer_iterator operator-(ptrdiff_t n) const { return pointer_iterator(this->m_pElement - n); }
    ptrdiff_t operator-(const Base& other) const { return Base::operator-(other); }
};

/// A list of nodes, borrowed from their node map.
class GENAPI_DECL node_vector
    : public GENICAM_NAMESPACE::element_vector<INode*, pointer_iterator<INode>, pointer_const_iterator<INode>>
{
public:
    node_vector();
    explicit node_vector(size_t count);
    node_vector(const node_vector& other);
    ~node_vector() override;
    node_vector& operator=(const node_vector& other);

    /// New elements are null.
    virtual void resize(size_t count);
};

/// A list of features, borrowed from their node map.
class GENAPI_DECL value_vector : public GENICAM_NAMESPACE::element_vector<IValue*, pointer_iterator<IValue>,
                                                                          pointer_const_iterator<IValue>>
{
public:
    value_vector();
    explicit value_vector(size_t count);
    value_vector(const value_vector& other);
    ~value_vector() override;
    value_vector& operator=(const value_vector& other);

    virtual void resize(size_t count, IValue* const& value);
};

typedef value_vector FeatureList_t;

} // namespace GENAPI_NAMESPACE
