/// Preloaded into programs that know nothing of themes: their applications come up with one. The
/// theme directory stands in MOX_QT_TESTS_THEME; a property of the application that is to be true
/// before the theme is applied may stand in MOX_QT_TESTS_PROPERTY.

#include "theme/Theme.h"
#include "theme/ThemeFactory.h"

#include <QtWidgets/QApplication>

#include <dlfcn.h>

namespace {

using Constructor = void (*)(void *place, int &argc, char **argv, int flags);

void applyTheme(QApplication *application)
{
    const QByteArray property = qgetenv("MOX_QT_TESTS_PROPERTY");
    if (!property.isEmpty()) {
        application->setProperty(property.constData(), true);
    }
    static TARN::Theme *const theme =
        TARN::ThemeFactory::getInstance()->readTheme(qEnvironmentVariable("MOX_QT_TESTS_THEME"));
    theme->customize(application);
}

void construct(const char *constructor, void *place, int &argc, char **argv, int flags)
{
    const auto replaced = reinterpret_cast<Constructor>(dlsym(RTLD_NEXT, constructor));
    replaced(place, argc, argv, flags);
    applyTheme(static_cast<QApplication *>(place));
}

} // namespace

/// Has \a function be found in the place of \a constructor, a constructor's name to the linker.
#define MOX_REPLACE(constructor, function)                                                         \
    extern "C" Q_DECL_EXPORT void function(void *, int &, char **, int) __asm__(constructor);      \
    void function(void *place, int &argc, char **argv, int flags)                                  \
    {                                                                                              \
        construct(constructor, place, argc, argv, flags);                                          \
    }

// QApplication(int &, char **, int), as it is called for itself and by derived classes.
MOX_REPLACE("_ZN12QApplicationC1ERiPPci", constructApplication)
MOX_REPLACE("_ZN12QApplicationC2ERiPPci", constructBaseApplication)
