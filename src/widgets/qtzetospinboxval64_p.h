#pragma once

#include "int64validator.h"
#include "qtzetospinboxval64.h"

#include <QSize>
#include <QString>

#include <optional>

class QKeyEvent;
class QLineEdit;

/// The insides of QtZetoSpinBoxVal64; not for any other user.
class QtZetoSpinBoxVal64Private
{
public:
    /// Shows the spin box's events to the private object before the spin box handles them.
    class EventAnalyzer : public QObject
    {
    public:
        explicit EventAnalyzer(QtZetoSpinBoxVal64Private* d)
            : m_d(d)
        {
        }
        bool eventFilter(QObject* watched, QEvent* event) override;

    private:
        QtZetoSpinBoxVal64Private* const m_d;
    };

    explicit QtZetoSpinBoxVal64Private(QtZetoSpinBoxVal64* spinBox);

    void initialize();
    QLineEdit* edit() const;

    int numberStart() const;
    int numberEnd() const;
    QString plainNumber(const QString& text) const;
    std::optional<qint64> parsed(const QString& text) const;
    bool contains(qint64 number) const { return number >= minimum && number <= maximum; }

    void show(qint64 number);
    void commit(qint64 number);
    void commitText(const QString& text, bool discard);
    void commitPending();
    void flushTypedText();
    std::optional<qint64> stepTarget(qint64 from, int steps) const;

    void setBounds(qint64 newMinimum, qint64 newMaximum);
    void forgetSizeHints();
    QSize sizeFor(int height, const QString& fixedText) const;

    void analyze(QEvent* event);
    void press();
    void release();
    void pressKey(const QKeyEvent& event);
    void typed(const QString& text);
    void keepCursorInNumber(int before, int now);
    void keepSelectionInNumber();

    QString prefix;
    QString suffix;
    qint64 minimum = 0;
    qint64 maximum = 99;
    qint64 singleStep = 1;
    qint64 value = 0;
    qint64 pendingValue = 0; ///< what is shown while an arrow is held down, otherwise the value
    int displayIntegerBase = 10;
    bool selectOnFocus = true;
    bool snapToStep = false;
    bool discardUnconfirmedEdit = true;
    bool held = false;
    bool textDirty = false;
    bool trackWhileHeld = true;
    Int64Validator validator;
    mutable QSize cachedSizeHint;
    mutable QSize cachedMinimumSizeHint;
    QtZetoSpinBoxVal64* const owner;
    EventAnalyzer eventAnalyzer;
};
