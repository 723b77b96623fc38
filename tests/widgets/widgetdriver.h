#pragma once

#include <QStringList>
#include <QVariant>
#include <QWidget>

#include <initializer_list>

/// The signals of a few objects as one line: "name value, name value ...".
class SignalLog
{
public:
    template <typename Sender, typename Class, typename... Args>
    void watch(const Sender* sender, void (Class::*signal)(Args...), const char* name)
    {
        QObject::connect(sender, signal, sender, [this, name](const Args&... args) {
            QStringList words = {QLatin1String(name)};
            (words.append(QVariant(args).toString()), ...);
            m_lines.append(words.join(QLatin1Char(' ')));
        });
    }

    void add(const QString& line) { m_lines.append(line); }
    /// What was logged since the last call.
    QString take();

private:
    QStringList m_lines;
};

/// Does to the parts of \a widget what a person does, one word after the other:
/// "@name" gives the focus to the child of that name, or to the inner slider for "@slider", and drives it
/// from here on; "type:42" types and "paste:42" pastes; "wheel+" and "wheel-" turn the wheel one notch;
/// "press", "drag:40" and "release" hold the slider's handle at a position, or "press" and "release" the up
/// arrow of a spin box; "click" clicks with the mouse; "otherWindow" looks at another window; "+Up", "*Up"
/// and
/// "-Up" press, repeat and release a key; any other word is a key. "value:42" is what a program does.
void drive(QWidget* widget, const QString& script);

/// A row of a data table: how a widget is set up, what is done to it and what the log then says.
struct Script
{
    const char* name;
    const char* setup;
    const char* script;
    const char* expected;
};

/// Makes the columns "setup", "script" and "expected" with \a rows.
void addScripts(std::initializer_list<Script> rows);

/// Shows \a widget and waits until it takes keys. \return whether it does.
bool showActive(QWidget* widget);
