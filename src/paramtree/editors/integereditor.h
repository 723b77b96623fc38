#pragma once

#include "numbereditor.h"
#include "qtzetospinboxval64.h"

#include <limits>

struct IntegerLimits
{
    qint64 minimum = std::numeric_limits<qint64>::min();
    qint64 maximum = std::numeric_limits<qint64>::max();
    qint64 increment = 1;
};

/// Edits an integer within its limits and, above 1, on the grid of its increment.
class IntegerEditor : public NumberEditor<QtZetoSpinBoxVal64>
{
    Q_OBJECT

public:
    IntegerEditor(const IntegerLimits& limits, int base, const QString& unit);

    void adopt(const ParamEditor& fresh) override;
    void stepBy(int steps) override;

protected:
    void showValue(const QVariant& value) override;
    QString complaintAbout(const QString& text) const override;

private:
    /// What a person enters lies on the grid.
    void beginSnapping();

    IntegerLimits m_limits;
};
