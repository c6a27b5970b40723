#include "resources/variables/PublishedVariables.h"

#include <QtCore/QCoreApplication>

namespace TARN {

QVariantMap publishedVariables(const char *propertyName)
{
    const QCoreApplication *app = QCoreApplication::instance();
    return app ? app->property(propertyName).toMap() : QVariantMap();
}

} // namespace TARN
