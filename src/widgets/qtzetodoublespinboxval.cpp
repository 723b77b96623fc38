#include "qtzetodoublespinboxval.h"

QtZetoDoubleSpinBoxVal::QtZetoDoubleSpinBoxVal(QWidget* parent)
    : SnappingSpinBox(parent)
{
}

void QtZetoDoubleSpinBoxVal::setValue(double value)
{
    setChangedValue(value);
}
