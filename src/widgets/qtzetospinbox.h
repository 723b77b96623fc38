#pragma once

#include <QWidget>

#include <memory>

class QToolButton;
class QtZetoSlider;
class QtZetoSpinBoxPrivate;
class QtZetoSpinBoxVal64;

/// A 64-bit spin box with a button that pops up a slider, for an int.
///
/// The popup opens above the button, or beside it once setOrientation(Qt::Horizontal) is called, and closes
/// by Escape, a click elsewhere or when it loses the focus. Range [0, 100] unless told otherwise.
///
/// Values: spin box and slider always hold the same; a value that is set or typed stays exactly that, on the
/// slider's scale or not. A value out of range is ignored, as QtZetoSpinBoxVal64 does.
class QtZetoSpinBox : public QWidget
{
    Q_OBJECT
    Q_CLASSINFO("author", "Zeto")
    Q_CLASSINFO("version", "1.0.1")
    Q_CLASSINFO("date", "06/30/16")

public:
    explicit QtZetoSpinBox(QWidget* parent = nullptr);
    ~QtZetoSpinBox() override;

    int value() const;
    int minimum() const;
    int maximum() const;
    int singleStep() const;
    /// Of the spin box and the slider.
    void setSingleStep(int step);

    Qt::Orientation orientation() const;
    /// Of the popup.
    void setOrientation(Qt::Orientation orientation);

    QString labelLeft() const;
    /// The label before the spin box; none while \a text is empty.
    void setLabelLeft(const QString& text);
    QString labelUpper() const;
    /// The label centred above; none while \a text is empty.
    void setLabelUpper(const QString& text);

    /// Whether typed text becomes the value with each key rather than by Enter. On unless switched off.
    void setKeyboardTracking(bool track);

    /// Whether a held arrow and a dragged handle tell one value, on release, rather than every value on the
    /// way: for listeners that write to a camera. Off unless switched on. What it does to the arrows stays
    /// done, see QtZetoSpinBoxVal64::setTrackWhileHeld().
    void setCommitsOnRelease(bool commit);

    /// Resizes the spin box within this widget to \a size at once. The layout has the last word when the
    /// event loop runs next.
    void fitSpinBox(const QSize& size);

    QtZetoSpinBoxVal64* spinBox() const;
    QtZetoSlider* slider() const;
    QToolButton* button() const;

signals:
    /// Once for each change, whoever made it.
    void valueChanged(int value);
    void rangeChanged(int min, int max);

public slots:
    /// A \a max below \a min counts as \a min. A value out of the new range moves to its nearer end.
    void setRange(int min, int max);
    /// Setting the present value leaves text that is being typed alone.
    void setValue(int value);

protected:
    void changeEvent(QEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    const std::unique_ptr<QtZetoSpinBoxPrivate> d;
};
