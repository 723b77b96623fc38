// Random settings, texts, keys and steps against the 64-bit spin box and its validator.

#include "fuzztarget.h"
#include "int64validator.h"
#include "qtzetospinboxval64.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>

namespace {

/// Takes values from the front of the input; zeros when it has come to its end.
class Input
{
public:
    Input(const uint8_t* data, size_t size)
        : m_bytes(QByteArray::fromRawData(reinterpret_cast<const char*>(data), static_cast<int>(size)))
    {
    }
    bool isAtEnd() const { return m_position >= m_bytes.size(); }
    int byte() { return isAtEnd() ? 0 : static_cast<uchar>(m_bytes.at(m_position++)); }
    qint64 integer()
    {
        quint64 bits = 0;
        for (int bytes = byte() % 9; bytes > 0; --bytes)
            bits = bits << 8 | static_cast<uint>(byte());
        return static_cast<qint64>(byte() % 2 ? 0 - bits : bits);
    }
    QString text()
    {
        static const QString alphabet = QStringLiteral("0123456789-+abcfxyzXZ .,'\u2212\u0664\u00b5");
        QString text;
        for (int length = byte() % 24; length > 0; --length)
            text += alphabet.at(byte() % alphabet.size());
        return text;
    }

private:
    QByteArray m_bytes;
    int m_position = 0;
};

void checkValidator(Input& input)
{
    Int64Validator validator(input.integer(), input.integer());
    validator.setBase(2 + input.byte() % 35);
    QString text = input.text();
    int position = 0;
    bool isNumber = false;
    const qint64 value = text.toLongLong(&isNumber, validator.base());
    const bool fits = isNumber && value >= validator.bottom() && value <= validator.top();
    require((validator.validate(text, position) == QValidator::Acceptable) == fits,
            "acceptable means in range");
}

void configure(QtZetoSpinBoxVal64& box, Input& input)
{
    static const char* const locales[] = {"C", "de_DE", "sv_SE", "ar_EG", "fr_CH", "hi_IN", "fa_IR", "en_US"};
    const int flags = input.byte();
    box.setLocale(QLocale(QLatin1String(locales[flags % 8])));
    box.setWrapping(flags & 8);
    box.setKeyboardTracking(flags & 16);
    box.setSnapToStep(flags & 32);
    box.setDiscardUnconfirmedEdit(flags & 64);
    box.setGroupSeparatorShown(flags & 128);
    if (input.byte() % 4 == 0)
        box.setTrackWhileHeld(false);
    if (input.byte() % 4 == 0)
        box.setPrefix(input.text());
    if (input.byte() % 4 == 0)
        box.setSuffix(input.text());
    if (input.byte() % 2 == 0)
        box.setDisplayIntegerBase(2 + input.byte() % 35);
    const qint64 bound = input.integer();
    box.setRange(bound, input.integer());
    box.setValue(bound);
    box.setSingleStep(input.integer());
}

void sendKey(QWidget& widget, QEvent::Type type, int key, const QString& text = QString())
{
    QKeyEvent event(type, key, Qt::NoModifier, text);
    QApplication::sendEvent(&widget, &event);
}

void act(QtZetoSpinBoxVal64& box, Input& input)
{
    static const int keys[] = {Qt::Key_Return, Qt::Key_Up,  Qt::Key_Down, Qt::Key_PageUp,    Qt::Key_PageDown,
                               Qt::Key_Home,   Qt::Key_End, Qt::Key_Left, Qt::Key_Backspace, Qt::Key_Delete};
    switch (input.byte() % 6) {
    case 0:
        sendKey(box, QEvent::KeyPress, 0, input.text());
        break;
    case 1:
        sendKey(box, QEvent::KeyPress, keys[static_cast<size_t>(input.byte()) % std::size(keys)]);
        break;
    case 2:
        sendKey(box, QEvent::KeyRelease, keys[static_cast<size_t>(input.byte()) % std::size(keys)]);
        break;
    case 3:
        box.stepBy(static_cast<int>(input.integer()));
        break;
    case 4:
        box.setValue(input.integer());
        break;
    default:
        box.clear();
    }
}

void checkSpinBox(Input& input)
{
    QtZetoSpinBoxVal64 box;
    configure(box, input);
    const bool startsInRange = box.value() >= box.minimum() && box.value() <= box.maximum();
    while (!input.isAtEnd())
        act(box, input);
    if (startsInRange)
        require(box.value() >= box.minimum() && box.value() <= box.maximum(), "the value stays in range");

    sendKey(box, QEvent::KeyRelease, Qt::Key_Up);
    sendKey(box, QEvent::KeyPress, Qt::Key_Return);
    require(box.text() == box.prefix() + box.textFromValue(box.value()) + box.suffix(),
            "a confirmed text is that of the value");
    box.setRange(std::numeric_limits<qint64>::min(), std::numeric_limits<qint64>::max());
    require(box.valueFromText(box.text()) == box.value(), "the text is read as the value");
}

} // namespace

int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    Input input(data, size);
    checkValidator(input);
    checkSpinBox(input);
    return 0;
}
