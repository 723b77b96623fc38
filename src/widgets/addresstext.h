#pragma once

#include <QString>

/// Dotted decimal, the first octet from the highest byte: 0xC0A80001 gives "192.168.0.1".
QString ipv4Text(quint32 address);

/// The address of a dotted text. Each part in turn shifts the address up by one byte and is OR-ed in as it
/// stands, 0 when it is no number: there is no check of the number of parts or of their size.
quint32 ipv4FromText(const QString& text);

/// The six low bytes as two lower-case hexadecimal digits each, joined by ":".
QString macText(quint64 address);
