#pragma once

#include "genparamfeature.h"

#include <QString>
#include <QVariant>

#include <variant>

/// The value of a feature in its own type; an enumeration's is the symbolic name of its current entry.
using GenParamValue = std::variant<std::monostate, bool, qint64, double, QString>;

enum class GenParamState : quint8
{
    Unread,
    NotAvailable, ///< not implemented or not available
    NotReadable,  ///< write-only
    Failed,       ///< the last read threw
    Good,         ///< the value is there, or the kind has none
};

/// What one look at a feature found.
struct GenParamReading
{
    GenParamState state = GenParamState::Unread;
    quint8 accessMode = GenApi::NA; ///< GenApi::EAccessMode in one byte
    GenParamValue value;
};

/// Equal in every bit that a person can see; a NaN equals a NaN.
bool operator==(const GenParamReading& a, const GenParamReading& b);

/// What surrounds a value in its text.
struct GenParamFormat
{
    QString unit;
    qint64 decimals = 0; ///< of a float
};

/// Asks access mode and value, each once. Throws what GenApi throws; \a reading then has the state Failed,
/// and the access mode if that could be asked.
void readParam(const GenParamFeature& feature, GenParamReading& reading);

/// Asks what displayText() needs beside the value. Throws what GenApi throws.
GenParamFormat formatOfParam(const GenParamFeature& feature);

/// The text of the value column.
QString displayText(GenParamKind kind, const GenParamReading& reading, const GenParamFormat& format);

/// The text of one value of \a kind, for example of a limit.
QString valueText(GenParamKind kind, const GenParamValue& value, const GenParamFormat& format);

/// What an editor starts with: the value in its own type, an IPv4 address as dotted text, and the placeholder
/// text where there is no value.
QVariant editValue(GenParamKind kind, const GenParamReading& reading);
