#pragma once

/// \file
/// The common part of gcstring_vector, node_vector and value_vector. Not to be used for itself: an SDK has no
/// such header.

#include <Base/GCTypes.h>

#include <memory>
#include <vector>

namespace GENICAM_NAMESPACE {

/// A growing list of \a T, implemented in the library for the three element types of the interface.
/// The iterators are made from a pointer to an element and give it back by base().
template <class T, class Iterator, class ConstIterator>
class GCBASE_API element_vector
{
public:
    using iterator = Iterator;
    using const_iterator = ConstIterator;

    virtual ~element_vector();

    T& operator[](size_t index);
    const T& operator[](size_t index) const;

    virtual void assign(size_t count, const T& value);
    virtual void clear();
    /// \return the place of the element after the removed one.
    virtual iterator erase(iterator pos);
    /// Throws OutOfRangeException if there is no such element.
    virtual T& at(size_t index);
    virtual const T& at(size_t index) const;
    virtual T& back();
    virtual const T& back() const;
    virtual iterator begin();
    virtual const_iterator begin() const;
    virtual iterator end();
    virtual const_iterator end() const;
    virtual T& front();
    virtual const T& front() const;
    virtual size_t capacity() const;
    virtual size_t max_size() const;
    virtual size_t size() const;
    virtual bool empty() const;
    /// \return the place of the new element.
    virtual iterator insert(iterator pos, const T& value);
    virtual void pop_back();
    virtual void push_back(const T& value);
    virtual void reserve(size_t count);
    virtual void erase(size_t index);
    virtual void insert(size_t index, const T& value);

protected:
    element_vector(size_t count, const T& value);
    element_vector(const element_vector& other);
    element_vector& operator=(const element_vector& other);

    void resizeTo(size_t count, const T& value);

private:
    std::unique_ptr<std::vector<T>> m_elements;
};

} // namespace GENICAM_NAMESPACE
