#include "samplegroup.h"

#include <QFontMetrics>

SampleGroup::SampleGroup(const QString& title, Qt::Orientation rows, Note note)
    : QGroupBox(title)
    , m_rows(rows)
    , m_note(std::move(note))
    , m_grid(new QGridLayout(this))
{
    m_grid->setColumnStretch(1, rows == Qt::Horizontal ? 1 : 0);
}

/// \return the label for the value told last, with room for every value so that nothing moves.
QLabel* SampleGroup::place(const QString& sample, QWidget* widget, int digits)
{
    auto* const name = new QLabel(sample);
    auto* const told = new QLabel(QStringLiteral("-"));
    name->setBuddy(widget);
    told->setLayoutDirection(Qt::LeftToRight); // a number, also where text runs the other way
    told->setTextInteractionFlags(Qt::TextSelectableByMouse);
    const int line = m_count++;
    if (m_rows == Qt::Horizontal) {
        told->setMinimumWidth(told->fontMetrics().horizontalAdvance(QString(digits + 2, QLatin1Char('0'))));
        m_grid->addWidget(name, line, 0);
        m_grid->addWidget(widget, line, 1);
        m_grid->addWidget(told, line, 2);
    } else {
        m_grid->addWidget(name, 0, line, Qt::AlignHCenter);
        m_grid->addWidget(widget, 1, line);
        m_grid->addWidget(told, 2, line, Qt::AlignHCenter);
    }
    return told;
}
