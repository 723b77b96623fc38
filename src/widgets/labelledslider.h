#pragma once

#include "valueslider.h"

#include <QObject>

class QFrame;
class QHBoxLayout;
class QLabel;
class QVBoxLayout;

/// What the integer and the double slider have in common: a slider with its range as labels, laid out in a
/// frame, that tells apart what the user did from what the program set.
///
/// Lives in the frame, which owns the widgets.
class LabelledSlider : public QObject
{
    Q_OBJECT

public:
    explicit LabelledSlider(QFrame& frame);

    Qt::Orientation orientation() const { return m_slider->orientation(); }
    void setOrientation(Qt::Orientation orientation);
    void setLabels(const QString& minimum, const QString& maximum);

    /// Neither of them tells a picked position.
    void setPositions(int first, int last, int step);
    void setPosition(int position, const ValueSlider::Reading& reading);
    /// Tells assistive technology what the slider stands at, the handle left to the user.
    void setReading(const ValueSlider::Reading& reading) { m_slider->setReading(reading); }

    ValueSlider* slider() const { return m_slider; }

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    /// The slider lost the keyboard.
    void focusOut();
    /// The user moved the slider: by a key or a click beside the handle, in \a direction 1 (up) or -1 (down),
    /// also when the position is as before because it is the last one; or by dragging or the wheel, with
    /// direction 0.
    void picked(int position, int direction);

private:
    void takeAction(int action);

    QLabel* m_labelMax;
    QLabel* m_labelMin;
    ValueSlider* m_slider;
    QVBoxLayout* m_column;
    QHBoxLayout* m_row; ///< below the slider, empty while that is upright
    bool m_setting = false;
};
