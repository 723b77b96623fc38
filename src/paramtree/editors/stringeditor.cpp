#include "stringeditor.h"

#include <QValidator>

namespace {

/// Refuses what would make a text longer in UTF-8 than the camera can hold.
class ByteLengthValidator : public QValidator
{
public:
    ByteLengthValidator(qint64 maximumBytes, QObject* parent)
        : QValidator(parent)
        , m_maximumBytes(maximumBytes)
    {
    }
    State validate(QString& text, int& /*position*/) const override
    {
        return text.toUtf8().size() <= m_maximumBytes ? Acceptable : Invalid;
    }

private:
    const qint64 m_maximumBytes;
};

} // namespace

StringEditor::StringEditor(qint64 maximumBytes, bool hasValue)
    : m_hasValue(hasValue)
{
    if (maximumBytes > 0)
        setValidator(new ByteLengthValidator(maximumBytes, this));
}

QString StringEditor::toText(const QVariant& editValue) const
{
    return m_hasValue ? editValue.toString() : QString();
}

QVariant StringEditor::toValue(const QString& text) const
{
    return text;
}

QString StringEditor::complaintAbout(const QString& text) const
{
    return tr("\"%1\" does not fit into the feature.").arg(text);
}
