#pragma once

#include <Base/GCElementVector.h>
#include <Base/GCException.h>

/// \file
/// Implementation of GenICam::element_vector, instantiated by the source of each list class.

namespace GENICAM_NAMESPACE {

template <class T, class I, class C>
element_vector<T, I, C>::element_vector(size_t count, const T& value)
    : m_elements(std::make_unique<std::vector<T>>(count, value))
{
}

template <class T, class I, class C>
element_vector<T, I, C>::element_vector(const element_vector& other)
    : m_elements(std::make_unique<std::vector<T>>(*other.m_elements))
{
}

template <class T, class I, class C>
element_vector<T, I, C>::~element_vector() = default;

template <class T, class I, class C>
element_vector<T, I, C>& element_vector<T, I, C>::operator=(const element_vector& other)
{
    *m_elements = *other.m_elements;
    return *this;
}

template <class T, class I, class C>
T& element_vector<T, I, C>::operator[](size_t index)
{
    return (*m_elements)[index];
}

template <class T, class I, class C>
const T& element_vector<T, I, C>::operator[](size_t index) const
{
    return (*m_elements)[index];
}

template <class T, class I, class C>
void element_vector<T, I, C>::assign(size_t count, const T& value)
{
    m_elements->assign(count, value);
}

template <class T, class I, class C>
void element_vector<T, I, C>::clear()
{
    m_elements->clear();
}

template <class T, class I, class C>
I element_vector<T, I, C>::erase(I pos)
{
    const ptrdiff_t index = pos - begin();
    m_elements->erase(m_elements->begin() + index);
    return begin() + index;
}

template <class T, class I, class C>
void element_vector<T, I, C>::erase(size_t index)
{
    erase(begin() + static_cast<ptrdiff_t>(index));
}

template <class T, class I, class C>
T& element_vector<T, I, C>::at(size_t index)
{
    return const_cast<T&>(static_cast<const element_vector*>(this)->at(index));
}

template <class T, class I, class C>
const T& element_vector<T, I, C>::at(size_t index) const
{
    if (index >= size())
        throw OUT_OF_RANGE_EXCEPTION("The list has %lu elements and no index %lu",
                                     static_cast<unsigned long>(size()), static_cast<unsigned long>(index));
    return (*m_elements)[index];
}

template <class T, class I, class C>
T& element_vector<T, I, C>::back()
{
    return m_elements->back();
}

template <class T, class I, class C>
const T& element_vector<T, I, C>::back() const
{
    return m_elements->back();
}

template <class T, class I, class C>
I element_vector<T, I, C>::begin()
{
    return I(m_elements->data());
}

template <class T, class I, class C>
C element_vector<T, I, C>::begin() const
{
    return C(m_elements->data());
}

template <class T, class I, class C>
I element_vector<T, I, C>::end()
{
    return I(m_elements->data() + m_elements->size());
}

template <class T, class I, class C>
C element_vector<T, I, C>::end() const
{
    return C(m_elements->data() + m_elements->size());
}

template <class T, class I, class C>
T& element_vector<T, I, C>::front()
{
    return m_elements->front();
}

template <class T, class I, class C>
const T& element_vector<T, I, C>::front() const
{
    return m_elements->front();
}

template <class T, class I, class C>
size_t element_vector<T, I, C>::capacity() const
{
    return m_elements->capacity();
}

template <class T, class I, class C>
size_t element_vector<T, I, C>::max_size() const
{
    return m_elements->max_size();
}

template <class T, class I, class C>
size_t element_vector<T, I, C>::size() const
{
    return m_elements->size();
}

template <class T, class I, class C>
bool element_vector<T, I, C>::empty() const
{
    return m_elements->empty();
}

template <class T, class I, class C>
I element_vector<T, I, C>::insert(I pos, const T& value)
{
    const ptrdiff_t index = pos - begin();
    m_elements->insert(m_elements->begin() + index, value);
    return begin() + index;
}

template <class T, class I, class C>
void element_vector<T, I, C>::insert(size_t index, const T& value)
{
    insert(begin() + static_cast<ptrdiff_t>(index), value);
}

template <class T, class I, class C>
void element_vector<T, I, C>::pop_back()
{
    m_elements->pop_back();
}

template <class T, class I, class C>
void element_vector<T, I, C>::push_back(const T& value)
{
    m_elements->push_back(value);
}

template <class T, class I, class C>
void element_vector<T, I, C>::reserve(size_t count)
{
    m_elements->reserve(count);
}

template <class T, class I, class C>
void element_vector<T, I, C>::resizeTo(size_t count, const T& value)
{
    m_elements->resize(count, value);
}

} // namespace GENICAM_NAMESPACE
