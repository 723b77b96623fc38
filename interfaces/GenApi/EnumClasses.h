#pragma once

/// \file
/// The enumerations' values as texts. Not part of GenApi.h.

#include <GenApi/Types.h>

namespace GENAPI_NAMESPACE {

/// One value of an enumeration and its text.
template <class E>
struct EnumText
{
    E value;
    const char* text;
};

/// Converts by the table <tt>Class::texts()</tt>, whose last row stands for values that it does not have.
template <class E, class Class>
class EnumConverter
{
public:
    /// \return false if there is no such text; the value is left as it is then.
    static bool FromString(const GENICAM_NAMESPACE::gcstring& ValueStr, E* pValue)
    {
        for (const EnumText<E>& row : Class::texts()) {
            if (ValueStr == row.text) {
                *pValue = row.value;
                return true;
            }
        }
        return false;
    }

    static void ToString(GENICAM_NAMESPACE::gcstring& ValueStr, E* pValue) { ValueStr = ToString(*pValue); }

    static GENICAM_NAMESPACE::gcstring ToString(E Value)
    {
        const char* last = "";
        for (const EnumText<E>& row : Class::texts()) {
            last = row.text;
            if (row.value == Value)
                break;
        }
        return last;
    }
};

#define GENAPI_ENUM_CLASS(E, ...)                                                                            \
    class E##Class : public EnumConverter<E, E##Class>                                                       \
    {                                                                                                        \
        friend class EnumConverter<E, E##Class>;                                                             \
        static const auto& texts()                                                                           \
        {                                                                                                    \
            static const EnumText<E> rows[] = {__VA_ARGS__};                                                 \
            return rows;                                                                                     \
        }                                                                                                    \
    }
#define GENAPI_ENUM_TEXT(name)                                                                               \
    {                                                                                                        \
        name, #name                                                                                          \
    }

GENAPI_ENUM_CLASS(ESign, GENAPI_ENUM_TEXT(Signed), GENAPI_ENUM_TEXT(Unsigned),
                  GENAPI_ENUM_TEXT(_UndefinedSign));
GENAPI_ENUM_CLASS(EEndianess, GENAPI_ENUM_TEXT(BigEndian), GENAPI_ENUM_TEXT(LittleEndian),
                  GENAPI_ENUM_TEXT(_UndefinedEndian));
GENAPI_ENUM_CLASS(EAccessMode, GENAPI_ENUM_TEXT(NI), GENAPI_ENUM_TEXT(NA), GENAPI_ENUM_TEXT(WO),
                  GENAPI_ENUM_TEXT(RO), GENAPI_ENUM_TEXT(RW), GENAPI_ENUM_TEXT(_CycleDetectAccesMode),
                  {_UndefinedAccesMode, "_UndefinedAccessMode"});
GENAPI_ENUM_CLASS(EVisibility, GENAPI_ENUM_TEXT(Beginner), GENAPI_ENUM_TEXT(Expert), GENAPI_ENUM_TEXT(Guru),
                  GENAPI_ENUM_TEXT(Invisible), GENAPI_ENUM_TEXT(_UndefinedVisibility));
GENAPI_ENUM_CLASS(ECachingMode, GENAPI_ENUM_TEXT(NoCache), GENAPI_ENUM_TEXT(WriteThrough),
                  GENAPI_ENUM_TEXT(WriteAround), GENAPI_ENUM_TEXT(_UndefinedCachingMode));
GENAPI_ENUM_CLASS(ERepresentation, GENAPI_ENUM_TEXT(Linear), GENAPI_ENUM_TEXT(Logarithmic),
                  GENAPI_ENUM_TEXT(Boolean), GENAPI_ENUM_TEXT(PureNumber), GENAPI_ENUM_TEXT(HexNumber),
                  GENAPI_ENUM_TEXT(IPV4Address), GENAPI_ENUM_TEXT(MACAddress),
                  GENAPI_ENUM_TEXT(_UndefinedRepresentation));
GENAPI_ENUM_CLASS(EDisplayNotation, {fnAutomatic, "Automatic"}, {fnFixed, "Fixed"},
                  {fnScientific, "Scientific"}, GENAPI_ENUM_TEXT(_UndefinedEDisplayNotation));
GENAPI_ENUM_CLASS(ESlope, GENAPI_ENUM_TEXT(Increasing), GENAPI_ENUM_TEXT(Decreasing),
                  GENAPI_ENUM_TEXT(Varying), GENAPI_ENUM_TEXT(Automatic), GENAPI_ENUM_TEXT(_UndefinedESlope));
GENAPI_ENUM_CLASS(EYesNo, GENAPI_ENUM_TEXT(Yes), GENAPI_ENUM_TEXT(No), GENAPI_ENUM_TEXT(_UndefinedYesNo));
GENAPI_ENUM_CLASS(ENameSpace, GENAPI_ENUM_TEXT(Custom), GENAPI_ENUM_TEXT(Standard),
                  GENAPI_ENUM_TEXT(_UndefinedNameSpace));
GENAPI_ENUM_CLASS(EStandardNameSpace, GENAPI_ENUM_TEXT(None), GENAPI_ENUM_TEXT(GEV), GENAPI_ENUM_TEXT(IIDC),
                  GENAPI_ENUM_TEXT(CL), GENAPI_ENUM_TEXT(USB), GENAPI_ENUM_TEXT(_UndefinedStandardNameSpace));
GENAPI_ENUM_CLASS(EInputDirection, GENAPI_ENUM_TEXT(idFrom), GENAPI_ENUM_TEXT(idTo),
                  GENAPI_ENUM_TEXT(idNone));

#undef GENAPI_ENUM_TEXT
#undef GENAPI_ENUM_CLASS

} // namespace GENAPI_NAMESPACE
