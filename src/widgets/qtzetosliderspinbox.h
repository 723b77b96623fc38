#pragma once

#include <QWidget>

#include <memory>

class QtZetoSlider;
class QtZetoSpinBoxVal;
class QtZetoSliderSpinBoxPrivate;

/// An integer spin box beside a slider.
///
/// What the user drags becomes the value when the handle is released, once; then it is told even if the spin
/// box already held it. Everything else becomes the value at once. A value that is set or typed stays exactly
/// that, on the slider's scale or not. Range [0, 100] unless told otherwise.
class QtZetoSliderSpinBox : public QWidget
{
    Q_OBJECT
    Q_CLASSINFO("author", "Zeto")
    Q_CLASSINFO("version", "1.0.1")
    Q_CLASSINFO("date", "06/30/16")

public:
    explicit QtZetoSliderSpinBox(QWidget* parent = nullptr);
    ~QtZetoSliderSpinBox() override;

    int value() const;
    int minimum() const;
    int maximum() const;
    int singleStep() const;
    /// Of the spin box and the slider.
    void setSingleStep(int step);

    Qt::Orientation orientation() const;
    /// Of the slider; it stands below the spin box when vertical.
    void setOrientation(Qt::Orientation orientation);

    QString labelLeft() const;
    /// The label before the spin box; none while \a text is empty.
    void setLabelLeft(const QString& text);
    QString labelUpper() const;
    /// The label centred above; none while \a text is empty.
    void setLabelUpper(const QString& text);

    QtZetoSpinBoxVal* spinBox() const;
    QtZetoSlider* slider() const;

signals:
    /// Once for each change, whoever made it, and at the end of each dragging.
    void valueChanged(int value);
    void rangeChanged(int min, int max);

public slots:
    /// Limited to the range. Setting the present value leaves text that is being typed alone.
    void setValue(int value);
    /// A \a max below \a min counts as \a min. A value out of the new range moves to its nearer end.
    void setRange(int min, int max);

protected:
    void showEvent(QShowEvent* event) override;

private:
    const std::unique_ptr<QtZetoSliderSpinBoxPrivate> d;
};
