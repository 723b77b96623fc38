#include "applicationlanguage.h"

#include <QCoreApplication>
#include <QLocale>
#include <QPointer>
#include <QTranslator>

namespace ZetoGui {
namespace {

/// The library's translator and the locale that it was made for. The application owns the translator, so that
/// none is left when the host makes another application object.
struct Language
{
    QPointer<QTranslator> translator;
    QLocale locale{QLocale::C};
};

Language& current()
{
    static Language language;
    return language;
}

} // namespace

void useApplicationLanguage()
{
    QCoreApplication* application = QCoreApplication::instance();
    Language& language = current();
    const QLocale locale;
    if (!application || (language.translator && language.locale == locale))
        return;
    delete language.translator;
    language.translator = new QTranslator(application);
    language.locale = locale;
    if (language.translator->load(locale, QStringLiteral("zeto"), QStringLiteral("_"),
                                  QStringLiteral(":/translations")))
        QCoreApplication::installTranslator(language.translator);
}

} // namespace ZetoGui
