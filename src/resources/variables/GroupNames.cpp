#include "resources/variables/GroupNames.h"

#include <QtCore/QString>

namespace TARN::GroupNames {

const QString &colors()
{
    static const QString name = QStringLiteral("colors");
    return name;
}

const QString &internalColors()
{
    static const QString name = QStringLiteral("internalColors");
    return name;
}

const QString &brushes()
{
    static const QString name = QStringLiteral("brushes");
    return name;
}

const QString &internalBrushes()
{
    static const QString name = QStringLiteral("internalBrushes");
    return name;
}

const QString &fonts()
{
    static const QString name = QStringLiteral("fonts");
    return name;
}

const QString &opacities()
{
    static const QString name = QStringLiteral("opacities");
    return name;
}

const QString &cornerRadii()
{
    static const QString name = QStringLiteral("cornerRadius");
    return name;
}

const QString &disabledFactors()
{
    static const QString name = QStringLiteral("factors");
    return name;
}

} // namespace TARN::GroupNames
