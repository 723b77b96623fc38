#pragma once

#include <Base/GCString.h>

#include <cstdarg>
#include <cstdio>
#include <sstream>
#include <string>

namespace GENICAM_NAMESPACE {

/// The base of everything that the interface throws. It is not a std::exception: catch both.
class GCBASE_RTTI_CLASS_API GenericException
{
public:
    /// \a pSourceFileName and \a SourceLine tell where it was thrown, \a pEntryPoint and \a pErrorNodeName
    /// which function of which node had failed, \a pExceptionType the name of the class.
    GenericException(const char* pDescription, const char* pSourceFileName, unsigned int SourceLine);
    GenericException(const char* pDescription, const char* pSourceFileName, unsigned int SourceLine,
                     const char* pExceptionType);
    GenericException(const char* pDescription, const char* pSourceFileName, unsigned int SourceLine,
                     const char* pEntryPoint, const char* pErrorNodeName, const char* pExceptionType);
    GenericException(const GenericException& other);
    GenericException& operator=(const GenericException& other);
    virtual ~GenericException() noexcept;

    /// What happened, for people at the camera.
    virtual const char* GetDescription() const noexcept;
    virtual const char* GetSourceFileName() const noexcept;
    virtual unsigned int GetSourceLine() const noexcept;
    /// What happened and all that is known of the place, for a log.
    virtual const char* what() const noexcept;

private:
    gcstring m_description;
    gcstring m_sourceFileName;
    unsigned int m_sourceLine;
    gcstring m_what;
};

/// Declares a kind of exception that differs from GenericException by nothing but its type.
#define GENICAM_DECLARE_EXCEPTION(Name)                                                                      \
    class GCBASE_RTTI_CLASS_API Name : public GenericException                                               \
    {                                                                                                        \
    public:                                                                                                  \
        Name(const char* pDescription, const char* pSourceFileName, int SourceLine);                         \
        Name(const char* pDescription, const char* pSourceFileName, int SourceLine,                          \
             const char* pExceptionType);                                                                    \
        Name(const char* pDescription, const char* pSourceFileName, int SourceLine, const char* pEntryPoint, \
             const char* pErrorNodeName, const char* pExceptionType);                                        \
        ~Name() noexcept override;                                                                           \
    }

/// Memory could not be had.
GENICAM_DECLARE_EXCEPTION(BadAllocException);
/// An argument cannot be used, for example a text that is no number.
GENICAM_DECLARE_EXCEPTION(InvalidArgumentException);
/// A value is outside its limits or off its increment.
GENICAM_DECLARE_EXCEPTION(OutOfRangeException);
/// A property of a node is missing or wrong.
GENICAM_DECLARE_EXCEPTION(PropertyException);
/// Something failed at run time that no other class describes.
GENICAM_DECLARE_EXCEPTION(RuntimeException);
/// The program uses the interface wrongly.
GENICAM_DECLARE_EXCEPTION(LogicalErrorException);
/// The access mode does not allow the call.
GENICAM_DECLARE_EXCEPTION(AccessException);
/// The device did not answer in time.
GENICAM_DECLARE_EXCEPTION(TimeoutException);
/// An object does not have the interface that it is asked for.
GENICAM_DECLARE_EXCEPTION(DynamicCastException);

#undef GENICAM_DECLARE_EXCEPTION

/// Throws BadAllocException for the given place in the source.
[[noreturn]] GCBASE_API void ThrowBadAlloc(const char* source, int line);

/// Makes an exception of class \a E for one place in the source. Texts are cut at 255 bytes.
template <class E>
class ExceptionReporter
{
public:
    ExceptionReporter(const char* pSourceFileName, int SourceLine)
        : m_pSourceFileName(pSourceFileName)
        , m_sourceLine(SourceLine)
    {
    }
    ExceptionReporter(const char* pSourceFileName, int SourceLine, const char* pExceptionType)
        : m_pSourceFileName(pSourceFileName)
        , m_sourceLine(SourceLine)
        , m_pExceptionType(pExceptionType)
    {
    }

    /// \a pFormat and what follows it are as in printf.
    E Report(const char* pFormat, ...)
    {
        char text[256];
        va_list arguments;
        va_start(arguments, pFormat);
        std::vsnprintf(text, sizeof(text), pFormat, arguments);
        va_end(arguments);
        return make(text);
    }
    E Report() { return make(""); }
    E Report(const std::string& s) { return Report("%s", s.c_str()); }
    E Report(const std::stringstream& s) { return Report(s.str()); }

private:
    E make(const char* text) const
    {
        if (m_pExceptionType)
            return E(text, m_pSourceFileName, m_sourceLine, m_pExceptionType);
        return E(text, m_pSourceFileName, m_sourceLine);
    }

    const char* m_pSourceFileName;
    int m_sourceLine;
    const char* m_pExceptionType = nullptr;
};

} // namespace GENICAM_NAMESPACE

#define GENICAM_REPORT_EXCEPTION(Name)                                                                       \
    GENICAM_NAMESPACE::ExceptionReporter<GENICAM_NAMESPACE::Name>(__FILE__, __LINE__, #Name).Report

/// Use as <tt>throw ACCESS_EXCEPTION("Cannot write '%s'", name);</tt>
#define GENERIC_EXCEPTION GENICAM_REPORT_EXCEPTION(GenericException)
#define BAD_ALLOC_EXCEPTION GENICAM_REPORT_EXCEPTION(BadAllocException)
#define INVALID_ARGUMENT_EXCEPTION GENICAM_REPORT_EXCEPTION(InvalidArgumentException)
#define OUT_OF_RANGE_EXCEPTION GENICAM_REPORT_EXCEPTION(OutOfRangeException)
#define PROPERTY_EXCEPTION GENICAM_REPORT_EXCEPTION(PropertyException)
#define RUNTIME_EXCEPTION GENICAM_REPORT_EXCEPTION(RuntimeException)
#define LOGICAL_ERROR_EXCEPTION GENICAM_REPORT_EXCEPTION(LogicalErrorException)
#define ACCESS_EXCEPTION GENICAM_REPORT_EXCEPTION(AccessException)
#define TIMEOUT_EXCEPTION GENICAM_REPORT_EXCEPTION(TimeoutException)
#define DYNAMICCAST_EXCEPTION GENICAM_REPORT_EXCEPTION(DynamicCastException)
