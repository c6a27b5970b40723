#pragma once

#include <catalogue/Catalogue.h>
#include <catalogue/Words.h>

/// Calls \a visit with the group and the name of every brush and colour of the catalogue, and of
/// every disabled twin.
template <typename Visit>
void visitBrushesAndColors(Visit visit)
{
    for (const TARN::Variable &variable : TARN::Catalogue::variables()) {
        if (variable.group != QLatin1String("brushes") &&
            variable.group != QLatin1String("colors")) {
            continue;
        }
        visit(variable.group, variable.name);
        if (variable.hasDisabledTwin) {
            visit(variable.group, variable.name + TARN::Words::disabled);
        }
    }
}
