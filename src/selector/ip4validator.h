#pragma once

#include <QValidator>

/// Checks that a text is an IPv4 address in dotted decimal: four numbers up to 255, with blanks around them
/// if somebody likes. The empty text passes; an address with parts still missing is Intermediate.
class IP4Validator : public QValidator
{
    Q_OBJECT

public:
    using QValidator::QValidator;

    State validate(QString& input, int& position) const override;
};
