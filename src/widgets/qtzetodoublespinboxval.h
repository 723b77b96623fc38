#pragma once

#include "snappingspinbox.h"

#include <QDoubleSpinBox>

/// A QDoubleSpinBox that can keep to a step grid (setSnapToStep()) and can leave typed text alone until Enter
/// (setAcceptWhileTyping()). Neither is on by itself but taking text over while it is typed.
class QtZetoDoubleSpinBoxVal : public SnappingSpinBox<QDoubleSpinBox>
{
    Q_OBJECT
    Q_CLASSINFO("author", "Zeto")
    Q_CLASSINFO("version", "1.0.1")
    Q_CLASSINFO("date", "08/01/16")

public:
    explicit QtZetoDoubleSpinBoxVal(QWidget* parent = nullptr);

public slots:
    /// Limited to the range and rounded to the decimals; a \a value that is not finite is ignored. Setting
    /// the present value leaves text that is being typed alone.
    void setValue(double value);
};
