#include "Display.h"

#include <QtCore/QtGlobal>

namespace TARN::Gallery {

bool hasDisplay()
{
    for (const char *name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
        if (!qEnvironmentVariableIsEmpty(name)) {
            return true;
        }
    }
    return false;
}

} // namespace TARN::Gallery
