#include <Base/GCException.h>

namespace GENICAM_NAMESPACE {

namespace {

/// \a text with \a before and \a after around it, nothing if there is no text.
gcstring wrapped(const char* before, const char* text, const char* after)
{
    return text && *text ? gcstring(before) + text + after : gcstring();
}

gcstring fullText(const char* description, const char* file, unsigned int line, const char* entryPoint,
                  const char* nodeName, const char* type)
{
    std::ostringstream place;
    place << " (" << gcstring(file) << ':' << line << ')';
    return gcstring(description) + wrapped(" : ", type, " thrown") + wrapped(" in node '", nodeName, "'") +
           wrapped(" while calling '", entryPoint, "'") + place.str().c_str();
}

} // namespace

GenericException::GenericException(const char* pDescription, const char* pSourceFileName,
                                   unsigned int SourceLine)
    : GenericException(pDescription, pSourceFileName, SourceLine, "GenericException")
{
}

GenericException::GenericException(const char* pDescription, const char* pSourceFileName,
                                   unsigned int SourceLine, const char* pExceptionType)
    : GenericException(pDescription, pSourceFileName, SourceLine, "", "", pExceptionType)
{
}

GenericException::GenericException(const char* pDescription, const char* pSourceFileName,
                                   unsigned int SourceLine, const char* pEntryPoint,
                                   const char* pErrorNodeName, const char* pExceptionType)
    : m_description(pDescription)
    , m_sourceFileName(pSourceFileName)
    , m_sourceLine(SourceLine)
    , m_what(fullText(pDescription, pSourceFileName, SourceLine, pEntryPoint, pErrorNodeName, pExceptionType))
{
}

GenericException::GenericException(const GenericException& other) = default;

GenericException& GenericException::operator=(const GenericException& other) = default;

GenericException::~GenericException() noexcept = default;

const char* GenericException::GetDescription() const noexcept
{
    return m_description.c_str();
}

const char* GenericException::GetSourceFileName() const noexcept
{
    return m_sourceFileName.c_str();
}

unsigned int GenericException::GetSourceLine() const noexcept
{
    return m_sourceLine;
}

const char* GenericException::what() const noexcept
{
    return m_what.c_str();
}

#define DEFINE_EXCEPTION(Name)                                                                               \
    Name::Name(const char* pDescription, const char* pSourceFileName, int SourceLine)                        \
        : Name(pDescription, pSourceFileName, SourceLine, #Name)                                             \
    {                                                                                                        \
    }                                                                                                        \
    Name::Name(const char* pDescription, const char* pSourceFileName, int SourceLine,                        \
               const char* pExceptionType)                                                                   \
        : Name(pDescription, pSourceFileName, SourceLine, "", "", pExceptionType)                            \
    {                                                                                                        \
    }                                                                                                        \
    Name::Name(const char* pDescription, const char* pSourceFileName, int SourceLine,                        \
               const char* pEntryPoint, const char* pErrorNodeName, const char* pExceptionType)              \
        : GenericException(pDescription, pSourceFileName, static_cast<unsigned int>(SourceLine),             \
                           pEntryPoint, pErrorNodeName, pExceptionType)                                      \
    {                                                                                                        \
    }                                                                                                        \
    Name::~Name() noexcept = default;

DEFINE_EXCEPTION(BadAllocException)
DEFINE_EXCEPTION(InvalidArgumentException)
DEFINE_EXCEPTION(OutOfRangeException)
DEFINE_EXCEPTION(PropertyException)
DEFINE_EXCEPTION(RuntimeException)
DEFINE_EXCEPTION(LogicalErrorException)
DEFINE_EXCEPTION(AccessException)
DEFINE_EXCEPTION(TimeoutException)
DEFINE_EXCEPTION(DynamicCastException)

void ThrowBadAlloc(const char* source, int line)
{
    throw BadAllocException("Out of memory", source, line);
}

} // namespace GENICAM_NAMESPACE
