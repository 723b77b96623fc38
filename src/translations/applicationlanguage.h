#pragma once

namespace ZetoGui {

/// Shows the library's texts in the language of QLocale(), the application's default locale, as far as there
/// is a translation; in English otherwise. Each window calls it before it makes its form, so a host may set
/// its locale at any time before; windows that are open keep their language. Does nothing without an
/// application. GUI thread.
void useApplicationLanguage();

} // namespace ZetoGui
