#include "stringeditor.h"

#include <QValidator>

namespace {

/// Refuses what would make a text longer in UTF-8 than the camera can hold; 0 is no limit.
class ByteLengthValidator : public QValidator
{
public:
    ByteLengthValidator(const qint64& maximumBytes, QObject* parent)
        : QValidator(parent)
        , m_maximumBytes(maximumBytes)
    {
    }
    State validate(QString& text, int& /*position*/) const override
    {
        return m_maximumBytes <= 0 || text.toUtf8().size() <= m_maximumBytes ? Acceptable : Invalid;
    }

private:
    const qint64& m_maximumBytes;
};

} // namespace

StringEditor::StringEditor(qint64 maximumBytes, bool hasValue)
    : m_maximumBytes(maximumBytes)
    , m_hasValue(hasValue)
{
    setValidator(new ByteLengthValidator(m_maximumBytes, this));
}

void StringEditor::adopt(const ParamEditor& fresh)
{
    const auto* other = dynamic_cast<const StringEditor*>(&fresh);
    if (!other)
        return;
    m_hasValue = other->m_hasValue;
    m_maximumBytes = other->m_maximumBytes;
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
