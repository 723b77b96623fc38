#pragma once

#include <Base/GCTypes.h>

#include <iosfwd>

/// "Not found" and "up to the end".
#define GCSTRING_NPOS (size_t(-1))

namespace GENICAM_NAMESPACE {

/// The text type of the interface: a sequence of bytes, UTF-8 where it comes from a camera.
///
/// It is a class of its own so that a text can cross from one library to another. It is neither a std::string
/// nor converts from one, and it converts to <tt>const char*</tt> by itself, which makes some expressions
/// mean the pointer: <tt>"a" == g</tt> and <tt>g <= h</tt> compare addresses, <tt>if (g)</tt> is always true.
/// Write <tt>g == "a"</tt> and <tt>g.empty()</tt>. A null pointer is taken for an empty text.
class GCBASE_API gcstring
{
public:
    gcstring();
    gcstring(const char* pc);
    gcstring(const char* pc, size_t n);
    gcstring(size_t count, char ch);
    gcstring(const gcstring& str);
    virtual ~gcstring();

    virtual gcstring& append(const gcstring& str);
    virtual gcstring& append(size_t count, char ch);
    virtual gcstring& assign(const gcstring& str);
    virtual gcstring& assign(size_t count, char ch);
    virtual gcstring& assign(const char* pc);
    virtual gcstring& assign(const char* pc, size_t n);

    /// Negative, zero or positive: this text is before, equal to or after \a str, byte by byte.
    virtual int compare(const gcstring& str) const;

    /// The bytes with a terminating zero; valid until the text is changed.
    virtual const char* c_str() const;
    virtual bool empty() const;

    /// The position of the first match at or after \a offset, GCSTRING_NPOS without one. With \a count only
    /// the first \a count bytes of \a str are looked for.
    virtual size_t find(char ch, size_t offset = 0) const;
    virtual size_t find(const gcstring& str, size_t offset = 0) const;
    virtual size_t find(const gcstring& str, size_t offset, size_t count) const;
    virtual size_t find(const char* pc, size_t offset = 0) const;
    virtual size_t find(const char* pc, size_t offset, size_t count) const;
    virtual size_t find_first_of(const gcstring& str, size_t offset = 0) const;
    virtual size_t find_first_not_of(const gcstring& str, size_t offset = 0) const;

    /// The number of bytes.
    virtual size_t length() const;
    virtual size_t size() const;
    virtual size_t max_size() const;
    /// Cuts the text or fills it up with zero bytes.
    virtual void resize(size_t n);
    /// Throws OutOfRangeException if \a offset is beyond the end.
    virtual gcstring substr(size_t offset = 0, size_t count = GCSTRING_NPOS) const;
    virtual void swap(gcstring& Right);

    virtual bool operator!=(const gcstring& str) const;
    virtual bool operator!=(const char* pc) const;
    virtual bool operator==(const gcstring& str) const;
    virtual bool operator==(const char* pc) const;
    virtual bool operator<(const gcstring& str) const;
    virtual bool operator>(const gcstring& str) const;
    virtual operator const char*() const;

    gcstring& operator=(const gcstring& str);
    virtual gcstring& operator+=(const gcstring& str);
    /// Leaves this text as it is and returns the longer one.
    virtual gcstring operator+=(const gcstring& str) const;
    virtual gcstring& operator+=(const char* pc);
    virtual gcstring& operator+=(char ch);
    /// Leaves this text as it is and returns the longer one.
    virtual gcstring operator+=(char ch) const;

    static size_t _npos();
    /// Prefer GCSTRING_NPOS, which needs no data from the library.
    static const size_t npos;

    static void* operator new(size_t size);
    static void operator delete(void* pWhere);
    static void* operator new(size_t size, void* pWhere) noexcept;
    static void operator delete(void* pWhere, void* pWhere2) noexcept;

private:
    friend GCBASE_API gcstring operator+(const gcstring& left, const gcstring& right);
    friend GCBASE_API gcstring operator+(const gcstring& left, const char* right);
    friend GCBASE_API gcstring operator+(const char* left, const gcstring& right);

    /// Room for the text, whose type is the library's own affair.
    alignas(8) unsigned char m_opaque[64];
};

GCBASE_API gcstring operator+(const gcstring& left, const gcstring& right);
GCBASE_API gcstring operator+(const gcstring& left, const char* right);
GCBASE_API gcstring operator+(const char* left, const gcstring& right);

/// Reads up to \a delim, which is taken from the stream and not kept.
GCBASE_API std::istream& getline(std::istream& is, gcstring& str);
GCBASE_API std::istream& getline(std::istream& is, gcstring& str, char delim);

} // namespace GENICAM_NAMESPACE

GCBASE_API std::ostream& operator<<(std::ostream& ostr, const GENICAM_NAMESPACE::gcstring& str);
GCBASE_API std::istream& operator>>(std::istream& istr, GENICAM_NAMESPACE::gcstring& str);
