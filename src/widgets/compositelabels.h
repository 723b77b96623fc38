#pragma once

#include <QString>
#include <QVector>

class QBoxLayout;
class QLabel;
class QWidget;

/// The two optional labels of a composite widget, and the name under which assistive technology knows its
/// parts. A label exists once it had a text and is shown only while it has one.
class CompositeLabels
{
public:
    /// The left label goes to the front of \a row, before the first of \a parts, the upper one to
    /// \a upperIndex of \a upperRow. That part is the buddy of both; all belong to \a composite.
    CompositeLabels(QWidget* composite, QBoxLayout* row, QBoxLayout* upperRow, int upperIndex,
                    const QVector<QWidget*>& parts);

    QString left() const;
    void setLeft(const QString& text);
    QString upper() const;
    void setUpper(const QString& text);

    /// Gives every part without a name of its own the composite's: its accessible name or else a label's
    /// text, its own or that of a label beside the composite. To be called when the composite is shown, since
    /// that label may come late.
    void nameParts();

private:
    void setText(QLabel*& label, const QString& text, const char* name);
    void insertLeft();
    QString nameOfComposite() const;

    QWidget* m_composite;
    QBoxLayout* m_row;
    QBoxLayout* m_upperRow;
    int m_upperIndex;
    QVector<QWidget*> m_parts;
    QString m_givenName;
    QLabel* m_left = nullptr;
    QLabel* m_upper = nullptr;
};
