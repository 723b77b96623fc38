#include "compositelabels.h"

#include <QBoxLayout>
#include <QLabel>

namespace {

QString textOf(const QLabel* label)
{
    return label ? label->text() : QString();
}

/// A label's text as a name: without mnemonic and colon.
QString spoken(const QString& labelText)
{
    QString name = labelText;
    name.remove(QLatin1Char('&'));
    if (name.endsWith(QLatin1Char(':')))
        name.chop(1);
    return name.simplified();
}

/// The text of the label whose buddy is \a widget.
QString buddyTextOf(const QWidget* widget)
{
    if (!widget->parentWidget())
        return {};
    const auto labels =
        widget->parentWidget()->findChildren<const QLabel*>(QString(), Qt::FindDirectChildrenOnly);
    for (const QLabel* const label : labels) {
        if (label->buddy() == widget)
            return label->text();
    }
    return {};
}

} // namespace

CompositeLabels::CompositeLabels(QWidget* composite, QBoxLayout* row, QBoxLayout* upperRow, int upperIndex,
                                 const QVector<QWidget*>& parts)
    : m_composite(composite)
    , m_row(row)
    , m_upperRow(upperRow)
    , m_upperIndex(upperIndex)
    , m_parts(parts)
{
}

QString CompositeLabels::left() const
{
    return textOf(m_left);
}

void CompositeLabels::setLeft(const QString& text)
{
    const bool isNew = !m_left;
    setText(m_left, text, "labelLeft");
    if (isNew && m_left)
        insertLeft();
}

/// In line with the first part, which stands at the front and maybe at the top of the row.
void CompositeLabels::insertLeft()
{
    const Qt::Alignment alignment = m_row->itemAt(0)->alignment();
    m_left->setMinimumHeight(m_parts.first()->sizeHint().height());
    m_row->insertWidget(0, m_left, 0, alignment);
}

QString CompositeLabels::upper() const
{
    return textOf(m_upper);
}

void CompositeLabels::setUpper(const QString& text)
{
    const bool isNew = !m_upper;
    setText(m_upper, text, "labelUpper");
    if (isNew && m_upper)
        m_upperRow->insertWidget(m_upperIndex, m_upper, 0, Qt::AlignHCenter);
}

void CompositeLabels::setText(QLabel*& label, const QString& text, const char* name)
{
    if (!label && text.isEmpty())
        return;
    if (!label) {
        label = new QLabel(m_composite);
        label->setObjectName(QLatin1String(name));
        label->setBuddy(m_parts.first());
    }
    label->setText(text);
    label->setVisible(!text.isEmpty());
    nameParts();
}

QString CompositeLabels::nameOfComposite() const
{
    const QStringList candidates = {m_composite->accessibleName(), spoken(left()), spoken(upper()),
                                    spoken(buddyTextOf(m_composite))};
    for (const QString& candidate : candidates) {
        if (!candidate.isEmpty())
            return candidate;
    }
    return {};
}

void CompositeLabels::nameParts()
{
    const QString name = nameOfComposite();
    for (QWidget* const part : qAsConst(m_parts)) {
        if (part->accessibleName() == m_givenName)
            part->setAccessibleName(name);
    }
    m_givenName = name;
}
