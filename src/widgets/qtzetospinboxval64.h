#pragma once

#include <QAbstractSpinBox>

#include <memory>

class QtZetoSpinBoxVal64Private;

/// A spin box for signed 64-bit integers, shown as prefix + number + suffix in any base from 2 to 36.
///
/// It starts as "0" in the range 0 to 99 with step 1. What sets it apart from QSpinBox:
/// - A value out of range is ignored, not clamped, and so is a step that would leave the range, unless
///   wrapping() leads it to the other end. Changing the range leaves the value alone. No step overflows.
/// - With snapToStep(), committed values are moved to the grid of minimum() and singleStep().
/// - With keyboardTracking(), each typed character is committed at once, and a text that is no value in range
///   gives way to the current value. Without it, Return and Enter commit; what becomes of a text that is
///   left unconfirmed, by a click, an arrow, the wheel or the focus, is for discardUnconfirmedEdit() to say.
/// - Without trackWhileHeld(), stepping with an arrow held down only shows the values and its release commits
///   the last one.
/// Prefix and suffix cannot be selected or entered with the cursor.
///
/// For the GUI thread only.
class QtZetoSpinBoxVal64 : public QAbstractSpinBox
{
    Q_OBJECT
    Q_CLASSINFO("author", "Zeto")
    Q_CLASSINFO("version", "1.0.0")
    Q_CLASSINFO("date", "03/29/2018")
    Q_PROPERTY(QString suffix READ suffix WRITE setSuffix)
    Q_PROPERTY(QString prefix READ prefix WRITE setPrefix)
    Q_PROPERTY(QString cleanText READ cleanText)
    Q_PROPERTY(qint64 minimum READ minimum WRITE setMinimum)
    Q_PROPERTY(qint64 maximum READ maximum WRITE setMaximum)
    Q_PROPERTY(qint64 singleStep READ singleStep WRITE setSingleStep)
    Q_PROPERTY(qint64 value READ value WRITE setValue NOTIFY valueChanged USER true)
    Q_PROPERTY(int displayIntegerBase READ displayIntegerBase WRITE setDisplayIntegerBase)

public:
    explicit QtZetoSpinBoxVal64(QWidget* parent = nullptr);
    ~QtZetoSpinBoxVal64() override;
    Q_DISABLE_COPY(QtZetoSpinBoxVal64)

    /// Prefix, suffix and base are not shown before the next change of the value.
    QString prefix() const;
    void setPrefix(const QString& prefix);
    QString suffix() const;
    void setSuffix(const QString& suffix);
    int displayIntegerBase() const;
    /// A base outside 2 to 36 is told as a warning and taken as 10.
    void setDisplayIntegerBase(int base);

    /// The value in plain decimal digits, whatever the base and the locale.
    QString cleanText() const;
    qint64 value() const;

    qint64 minimum() const;
    qint64 maximum() const;
    qint64 singleStep() const;
    /// Each bound moves the other one along rather than pass it; setRange() keeps \a minimum.
    void setMinimum(qint64 minimum);
    void setMaximum(qint64 maximum);
    void setRange(qint64 minimum, qint64 maximum);
    /// 0 and negative steps are allowed; they make no grid to snap to.
    void setSingleStep(qint64 step);

    /// Whether the number is selected when the focus comes and after each step. Default true.
    bool selectOnFocus() const;
    void setSelectOnFocus(bool on);
    /// Default false.
    bool snapToStep() const;
    void setSnapToStep(bool on);
    /// Whether typed text that was not confirmed is thrown away instead of committed. Default true.
    bool discardUnconfirmedEdit() const;
    void setDiscardUnconfirmedEdit(bool on);
    /// True at first. Any call of the setter turns it off for good, whatever its argument.
    bool trackWhileHeld() const;
    void setTrackWhileHeld(bool on);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    QValidator::State validate(QString& text, int& position) const override;
    void fixup(QString& text) const override;
    void stepBy(int steps) override;

    /// Commits or discards typed text at once, as leaving the field would.
    void interpretText();

    virtual QString textFromValue(qint64 value) const;
    /// The number between prefix and suffix of \a text, or minimum() when it is not a value in range.
    virtual qint64 valueFromText(const QString& text) const;

public slots:
    void setValue(qint64 value);
    void selectAll();
    /// Empties the number in the field; the value stays as it is.
    void clear() override;

signals:
    void valueChanged(qint64 value);
    void valueChanged(const QString& text);

protected:
    StepEnabled stepEnabled() const override;

private:
    friend class QtZetoSpinBoxVal64Private;
    const std::unique_ptr<QtZetoSpinBoxVal64Private> m_d;
};
