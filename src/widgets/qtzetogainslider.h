#pragma once

#include <QWidget>

#include <memory>

class QtZetoDoubleSlider;
class QtZetoDoubleSpinBoxVal;
class QtZetoGainSliderPrivate;

/// A double spin box beside a slider, for gains and other numbers with decimals.
///
/// Dragging the handle changes the value all the while. A value that is set or typed stays as it is, rounded
/// to the decimals, on the slider's scale or not. Range [0.0, 100.0] and 3 decimals unless told otherwise.
class QtZetoGainSlider : public QWidget
{
    Q_OBJECT
    Q_CLASSINFO("author", "Zeto")
    Q_CLASSINFO("version", "1.0.1")
    Q_CLASSINFO("date", "08/01/16")

public:
    explicit QtZetoGainSlider(QWidget* parent = nullptr);
    ~QtZetoGainSlider() override;

    double value() const;
    double minimum() const;
    double maximum() const;
    double singleStep() const;
    /// Of the spin box and the slider.
    void setSingleStep(double step);

    int decimals() const;
    /// Of the spin box and the labels, 0 to 15.
    void setDecimals(int decimals);

    Qt::Orientation orientation() const;
    /// Of the slider; it stands below the spin box when vertical.
    void setOrientation(Qt::Orientation orientation);

    QString labelLeft() const;
    /// The label before the spin box; none while \a text is empty.
    void setLabelLeft(const QString& text);
    QString labelUpper() const;
    /// The label centred above; none while \a text is empty.
    void setLabelUpper(const QString& text);

    QtZetoDoubleSpinBoxVal* spinBox() const;
    QtZetoDoubleSlider* slider() const;

signals:
    /// Once for each change, whoever made it.
    void valueChanged(double value);
    void rangeChanged(double min, double max);

public slots:
    /// Limited to the range; a \a value that is not finite is ignored. Setting the present value leaves text
    /// that is being typed alone.
    void setValue(double value);
    /// A \a max below \a min counts as \a min. A value out of the new range moves to its nearer end.
    void setRange(double min, double max);

protected:
    void showEvent(QShowEvent* event) override;

private:
    const std::unique_ptr<QtZetoGainSliderPrivate> d;
};
