#pragma once

#include <Base/GCElementVector.h>
#include <Base/GCString.h>

namespace GENICAM_NAMESPACE {

/// Walks over the texts of a gcstring_vector without changing them. It has no iterator traits, so only
/// range-for and hand-written loops work with it.
class GCBASE_INLINE_CLASS_API gcstring_const_iterator
{
public:
    explicit gcstring_const_iterator(const gcstring* pString = nullptr)
        : m_pString(const_cast<gcstring*>(pString))
    {
    }

    const gcstring& operator*() const { return *m_pString; }
    const gcstring* operator->() const { return m_pString; }
    const gcstring& operator[](ptrdiff_t n) const { return m_pString[n]; }

    gcstring_const_iterator& operator++() { return *this += 1; }
    gcstring_const_iterator operator++(int) { return gcstring_const_iterator(m_pString++); }
    gcstring_const_iterator& operator--() { return *this -= 1; }
    gcstring_const_iterator operator--(int) { return gcstring_const_iterator(m_pString--); }
    gcstring_const_iterator& operator+=(ptrdiff_t n)
    {
        m_pString += n;
        return *this;
    }
    gcstring_const_iterator& operator-=(ptrdiff_t n) { return *this += -n; }
    gcstring_const_iterator operator+(ptrdiff_t n) const { return gcstring_const_iterator(m_pString + n); }
    gcstring_const_iterator operator-(ptrdiff_t n) const { return gcstring_const_iterator(m_pString - n); }
    ptrdiff_t operator-(const gcstring_const_iterator& other) const { return m_pString - other.m_pString; }

    bool operator==(const gcstring_const_iterator& other) const { return m_pString == other.m_pString; }
    bool operator!=(const gcstring_const_iterator& other) const { return m_pString != other.m_pString; }
    bool operator<(const gcstring_const_iterator& other) const { return m_pString < other.m_pString; }
    bool operator>(const gcstring_const_iterator& other) const { return m_pString > other.m_pString; }
    bool operator<=(const gcstring_const_iterator& other) const { return m_pString <= other.m_pString; }
    bool operator>=(const gcstring_const_iterator& other) const { return m_pString >= other.m_pString; }

protected:
    gcstring* m_pString;
};

/// Walks over the texts of a gcstring_vector.
class GCBASE_INLINE_CLASS_API gcstring_iterator : public gcstring_const_iterator
{
public:
    explicit gcstring_iterator(gcstring* pString = nullptr)
        : gcstring_const_iterator(pString)
    {
    }

    gcstring& operator*() const { return *m_pString; }
    gcstring* operator->() const { return m_pString; }
    gcstring& operator[](ptrdiff_t n) const { return m_pString[n]; }

    gcstring_iterator& operator++() { return *this += 1; }
    gcstring_iterator operator++(int) { return gcstring_iterator(m_pString++); }
    gcstring_iterator& operator--() { return *this -= 1; }
    gcstring_iterator operator--(int) { return gcstring_iterator(m_pString--); }
    gcstring_iterator& operator+=(ptrdiff_t n)
    {
        m_pString += n;
        return *this;
    }
    gcstring_iterator& operator-=(ptrdiff_t n) { return *this += -n; }
    gcstring_iterator operator+(ptrdiff_t n) const { return gcstring_iterator(m_pString + n); }
    gcstring_iterator operator-(ptrdiff_t n) const { return gcstring_iterator(m_pString - n); }
    ptrdiff_t operator-(const gcstring_const_iterator& other) const
    {
        return gcstring_const_iterator::operator-(other);
    }
};

/// A list of texts.
class GCBASE_API gcstring_vector : public element_vector<gcstring, gcstring_iterator, gcstring_const_iterator>
{
public:
    gcstring_vector();
    explicit gcstring_vector(size_t count, const gcstring& value = gcstring());
    gcstring_vector(const gcstring_vector& other);
    ~gcstring_vector() override;
    gcstring_vector& operator=(const gcstring_vector& other);

    using element_vector::assign;
    virtual void assign(const gcstring_vector& other);
    virtual void resize(size_t count, const gcstring& value = gcstring());
};

} // namespace GENICAM_NAMESPACE
