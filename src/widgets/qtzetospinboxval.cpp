#include "qtzetospinboxval.h"

QtZetoSpinBoxVal::QtZetoSpinBoxVal(QWidget* parent)
    : SnappingSpinBox(parent)
{
}

void QtZetoSpinBoxVal::setValue(int value)
{
    setChangedValue(value);
}
