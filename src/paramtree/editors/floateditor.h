#pragma once

#include "numbereditor.h"

#include <QDoubleSpinBox>

#include <limits>

struct FloatLimits
{
    double minimum = std::numeric_limits<double>::lowest();
    double maximum = std::numeric_limits<double>::max();
    double increment = 0; ///< 0 for none
};

/// Edits a double with all its digits and in its whole range. The arrows stay within the limits; a number
/// that is typed goes to the camera as it stands, which then says what it thinks of it.
class FloatEditor : public NumberEditor<QDoubleSpinBox>
{
    Q_OBJECT

public:
    FloatEditor(const FloatLimits& limits, int displayPrecision, const QString& unit);

    void adopt(const ParamEditor& fresh) override;
    void stepBy(int steps) override;
    QString textFromValue(double value) const override;
    double valueFromText(const QString& text) const override;
    QValidator::State validate(QString& text, int& position) const override;

protected:
    void showValue(const QVariant& value) override;
    QString complaintAbout(const QString& text) const override;
    StepEnabled stepEnabled() const override;

private:
    FloatLimits m_limits;
    const int m_displayPrecision;
};
