#include "preview/KeptFactors.h"

#include <resources/ThemeResources.h>

#include <QtCore/QCoreApplication>

namespace TARN::ThemeTool {

namespace {

const char *factorsProperty()
{
    return ThemeResources::getInternalThemeVariablePropertyName();
}

} // namespace

KeptFactors::KeptFactors()
    : m_factors(QCoreApplication::instance()->property(factorsProperty()))
{
    // The library looks at the factors once and remembers them: this has to happen before others
    // stand in their place.
    ThemeResources::getDisabledFactor(QString());
}

KeptFactors::~KeptFactors()
{
    QCoreApplication::instance()->setProperty(factorsProperty(), m_factors);
}

} // namespace TARN::ThemeTool
