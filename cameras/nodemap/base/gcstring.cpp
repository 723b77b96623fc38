#include <Base/GCException.h>
#include <Base/GCString.h>

#include <algorithm>
#include <istream>
#include <memory>
#include <new>
#include <ostream>
#include <string>
#include <type_traits>

namespace GENICAM_NAMESPACE {

namespace {

/// The text that lives in a gcstring's opaque room. Only this file knows its type, so only this library's
/// version of it is ever used.
template <class Room>
auto& textIn(Room& room)
{
    using Text = std::conditional_t<std::is_const_v<Room>, const std::string, std::string>;
    static_assert(sizeof(std::string) <= sizeof(room), "the room in gcstring is too small");
    return *std::launder(reinterpret_cast<Text*>(room));
}

const char* orEmpty(const char* pc)
{
    return pc ? pc : "";
}

} // namespace

const size_t gcstring::npos = GCSTRING_NPOS;

size_t gcstring::_npos()
{
    return GCSTRING_NPOS;
}

gcstring::gcstring()
{
    ::new (m_opaque) std::string;
}

gcstring::gcstring(const char* pc)
{
    ::new (m_opaque) std::string(orEmpty(pc));
}

gcstring::gcstring(const char* pc, size_t n)
{
    ::new (m_opaque) std::string(orEmpty(pc), pc ? n : 0);
}

gcstring::gcstring(size_t count, char ch)
{
    ::new (m_opaque) std::string(count, ch);
}

gcstring::gcstring(const gcstring& str)
{
    ::new (m_opaque) std::string(textIn(str.m_opaque));
}

gcstring::~gcstring()
{
    std::destroy_at(&textIn(m_opaque));
}

gcstring& gcstring::append(const gcstring& str)
{
    textIn(m_opaque).append(textIn(str.m_opaque));
    return *this;
}

gcstring& gcstring::append(size_t count, char ch)
{
    textIn(m_opaque).append(count, ch);
    return *this;
}

gcstring& gcstring::assign(const gcstring& str)
{
    return *this = str;
}

gcstring& gcstring::assign(size_t count, char ch)
{
    textIn(m_opaque).assign(count, ch);
    return *this;
}

gcstring& gcstring::assign(const char* pc)
{
    textIn(m_opaque).assign(orEmpty(pc));
    return *this;
}

gcstring& gcstring::assign(const char* pc, size_t n)
{
    textIn(m_opaque).assign(orEmpty(pc), pc ? n : 0);
    return *this;
}

int gcstring::compare(const gcstring& str) const
{
    return textIn(m_opaque).compare(textIn(str.m_opaque));
}

const char* gcstring::c_str() const
{
    return textIn(m_opaque).c_str();
}

bool gcstring::empty() const
{
    return textIn(m_opaque).empty();
}

size_t gcstring::find(char ch, size_t offset) const
{
    return textIn(m_opaque).find(ch, offset);
}

size_t gcstring::find(const gcstring& str, size_t offset) const
{
    return textIn(m_opaque).find(textIn(str.m_opaque), offset);
}

size_t gcstring::find(const gcstring& str, size_t offset, size_t count) const
{
    return find(str.substr(0, count), offset);
}

size_t gcstring::find(const char* pc, size_t offset) const
{
    return textIn(m_opaque).find(orEmpty(pc), offset);
}

size_t gcstring::find(const char* pc, size_t offset, size_t count) const
{
    return textIn(m_opaque).find(orEmpty(pc), offset, pc ? count : 0);
}

size_t gcstring::find_first_of(const gcstring& str, size_t offset) const
{
    return textIn(m_opaque).find_first_of(textIn(str.m_opaque), offset);
}

size_t gcstring::find_first_not_of(const gcstring& str, size_t offset) const
{
    return textIn(m_opaque).find_first_not_of(textIn(str.m_opaque), offset);
}

size_t gcstring::length() const
{
    return textIn(m_opaque).size();
}

size_t gcstring::size() const
{
    return textIn(m_opaque).size();
}

size_t gcstring::max_size() const
{
    return textIn(m_opaque).max_size();
}

void gcstring::resize(size_t n)
{
    textIn(m_opaque).resize(n);
}

gcstring gcstring::substr(size_t offset, size_t count) const
{
    if (offset > size())
        throw OUT_OF_RANGE_EXCEPTION("The text is shorter than the offset");
    return gcstring(c_str() + offset, std::min(count, size() - offset));
}

void gcstring::swap(gcstring& Right)
{
    textIn(m_opaque).swap(textIn(Right.m_opaque));
}

bool gcstring::operator!=(const gcstring& str) const
{
    return textIn(m_opaque) != textIn(str.m_opaque);
}

bool gcstring::operator!=(const char* pc) const
{
    return textIn(m_opaque) != orEmpty(pc);
}

bool gcstring::operator==(const gcstring& str) const
{
    return textIn(m_opaque) == textIn(str.m_opaque);
}

bool gcstring::operator==(const char* pc) const
{
    return textIn(m_opaque) == orEmpty(pc);
}

bool gcstring::operator<(const gcstring& str) const
{
    return textIn(m_opaque) < textIn(str.m_opaque);
}

bool gcstring::operator>(const gcstring& str) const
{
    return textIn(m_opaque) > textIn(str.m_opaque);
}

gcstring::operator const char*() const
{
    return c_str();
}

gcstring& gcstring::operator=(const gcstring& str)
{
    if (this != &str)
        textIn(m_opaque) = textIn(str.m_opaque);
    return *this;
}

gcstring& gcstring::operator+=(const gcstring& str)
{
    return append(str);
}

gcstring gcstring::operator+=(const gcstring& str) const
{
    return *this + str;
}

gcstring& gcstring::operator+=(const char* pc)
{
    textIn(m_opaque) += orEmpty(pc);
    return *this;
}

gcstring& gcstring::operator+=(char ch)
{
    textIn(m_opaque) += ch;
    return *this;
}

gcstring gcstring::operator+=(char ch) const
{
    return gcstring(*this).append(1, ch);
}

void* gcstring::operator new(size_t size)
{
    return ::operator new(size);
}

void gcstring::operator delete(void* pWhere)
{
    ::operator delete(pWhere);
}

void* gcstring::operator new(size_t /*size*/, void* pWhere) noexcept
{
    return pWhere;
}

void gcstring::operator delete(void* /*pWhere*/, void* /*pWhere2*/) noexcept
{
}

gcstring operator+(const gcstring& left, const gcstring& right)
{
    return gcstring(left).append(right);
}

gcstring operator+(const gcstring& left, const char* right)
{
    return gcstring(left) += right;
}

gcstring operator+(const char* left, const gcstring& right)
{
    return gcstring(left).append(right);
}

std::istream& getline(std::istream& is, gcstring& str)
{
    return getline(is, str, '\n');
}

std::istream& getline(std::istream& is, gcstring& str, char delim)
{
    std::string line;
    std::getline(is, line, delim);
    str.assign(line.data(), line.size());
    return is;
}

} // namespace GENICAM_NAMESPACE

std::ostream& operator<<(std::ostream& ostr, const GENICAM_NAMESPACE::gcstring& str)
{
    return ostr << str.c_str();
}

std::istream& operator>>(std::istream& istr, GENICAM_NAMESPACE::gcstring& str)
{
    std::string word;
    istr >> word;
    str.assign(word.data(), word.size());
    return istr;
}
