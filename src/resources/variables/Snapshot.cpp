#include "resources/variables/Snapshot.h"

#include "resources/variables/LookUps.h"
#include "resources/variables/PublishedVariables.h"
#include "resources/variables/ThemeGeneration.h"

#include <QtCore/QCoreApplication>

namespace TARN {

namespace {

/// The group of \a Kind as it is published when this is made.
template <typename Kind>
struct Snapshot
{
    ThemeGeneration generation = ThemeGeneration::current();
    VariableGroup<typename Kind::Value> group{
        publishedVariables(Kind::property()).value(Kind::group()).toMap()};
};

template <typename Kind>
const Snapshot<Kind> &currentSnapshot()
{
    static Snapshot<Kind> snapshot;
    if (snapshot.generation != ThemeGeneration::current()) {
        snapshot = Snapshot<Kind>();
    }
    return snapshot;
}

} // namespace

template <typename Kind>
const typename Kind::Value *findVariable(const QString &name)
{
    if (Q_UNLIKELY(lookUpObserver)) {
        lookUpObserver(Kind::group(), name);
    }
    return QCoreApplication::instance() ? currentSnapshot<Kind>().group.find(name) : nullptr;
}

template const QColor *findVariable<ColorKind>(const QString &name);
template const QBrush *findVariable<BrushKind>(const QString &name);
template const QFont *findVariable<FontKind>(const QString &name);
template const double *findVariable<OpacityKind>(const QString &name);
template const double *findVariable<CornerRadiusKind>(const QString &name);
template const int *findVariable<DisabledFactorKind>(const QString &name);

} // namespace TARN
