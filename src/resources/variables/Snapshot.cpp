#include "resources/variables/Snapshot.h"

#include "resources/kept/KeptValue.h"
#include "resources/variables/LookUps.h"
#include "resources/variables/PublishedVariables.h"

#include <QtCore/QCoreApplication>

namespace TARN {

template <typename Kind>
const typename Kind::Value *findVariable(const QString &name)
{
    if (Q_UNLIKELY(lookUpObserver)) {
        lookUpObserver(Kind::group(), name);
    }
    if (!QCoreApplication::instance()) {
        return nullptr;
    }
    using Group = VariableGroup<typename Kind::Value>;
    static ProcessCached<Group> group(
        [] { return Group(publishedVariables(Kind::property()).value(Kind::group()).toMap()); });
    return group.value().find(name);
}

template const QColor *findVariable<ColorKind>(const QString &name);
template const QBrush *findVariable<BrushKind>(const QString &name);
template const QFont *findVariable<FontKind>(const QString &name);
template const double *findVariable<OpacityKind>(const QString &name);
template const double *findVariable<CornerRadiusKind>(const QString &name);
template const int *findVariable<DisabledFactorKind>(const QString &name);

} // namespace TARN
