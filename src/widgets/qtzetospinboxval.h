#pragma once

#include "snappingspinbox.h"

#include <QSpinBox>

/// A QSpinBox that can keep to a step grid (setSnapToStep()) and can leave typed text alone until Enter
/// (setAcceptWhileTyping()). Neither is on by itself but taking text over while it is typed.
class QtZetoSpinBoxVal : public SnappingSpinBox<QSpinBox>
{
    Q_OBJECT
    Q_CLASSINFO("author", "Zeto")
    Q_CLASSINFO("version", "1.0.1")
    Q_CLASSINFO("date", "07/20/16")

public:
    explicit QtZetoSpinBoxVal(QWidget* parent = nullptr);

public slots:
    /// Limited to the range. Setting the present value leaves text that is being typed alone.
    void setValue(int value);
};
