#pragma once

#include <GenApi/GenApi.h>

#include <QtGlobal>

/// How the value of a feature is read, shown and written.
enum class GenParamKind : quint8
{
    Unknown, ///< the node's interface type could not be asked yet
    Other,   ///< no value: register, port
    Category,
    Integer,
    HexInteger,
    IPv4Address,
    MacAddress,
    Boolean,
    Command,
    Float,
    String,
    Enumeration,
};

/// Whether the value is a GenApi::IInteger.
bool isIntegerKind(GenParamKind kind);

/// A feature with the interface of its kind, looked up once: such a cast costs more than many a read.
struct GenParamFeature
{
    GenApi::IValue* value = nullptr;
    union {
        void* interface_ = nullptr; // none of the kinds below
        GenApi::IInteger* integer;  // one of the integer kinds
        GenApi::IBoolean* boolean;
        GenApi::ICommand* command;
        GenApi::IFloat* real;
        GenApi::IString* string;
        GenApi::IEnumeration* enumeration;
    };
    GenParamKind kind = GenParamKind::Unknown;
};

/// The feature as the node itself declares it: by principal interface type, integers by representation.
/// Throws what GenApi throws.
GenParamFeature declaredFeature(GenApi::IValue& value);

/// The kind that the name of an integer feature of a GigE Vision device stands for, Unknown for all other
/// names. Many descriptions give such features no representation.
GenParamKind namedAddressKind(const GenICam::gcstring& name);

/// As declaredFeature(), except that without \a trustRepresentation the name of an integer goes before its
/// representation.
GenParamFeature featureInUse(GenApi::IValue& value, bool trustRepresentation);
