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

/// The kind that the node itself declares: by principal interface type, integers by representation. Throws
/// what GenApi throws.
GenParamKind declaredKind(GenApi::IValue& feature);

/// The kind that the name of an integer feature of a GigE Vision device stands for, Unknown for all other
/// names. Many descriptions give such features no representation.
GenParamKind namedAddressKind(const GenICam::gcstring& name);

/// The kind in use: what the node declares, except that without \a trustRepresentation the name of an integer
/// goes before its representation. Throws what GenApi throws.
GenParamKind paramKind(GenApi::IValue& feature, bool trustRepresentation);
