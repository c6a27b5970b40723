#include "support/themes/NamedBrushes.h"

#include <support/Text.h>
#include <support/Variables.h>
#include <support/themes/CatalogueNames.h>

NamedBrushes::NamedBrushes()
{
    visitBrushesAndColors([this](const QString &group, const QString &name) {
        if (group == text("brushes")) {
            add(name);
        }
    });
    publishVariables({{text("brushes"), m_brushes}});
}

QString NamedBrushes::nameOf(const QBrush &brush) const
{
    return brush.style() == Qt::NoBrush ? text("none") : m_names.value(brush.color().rgb());
}

void NamedBrushes::add(const QString &name)
{
    const QRgb color = qRgb(0, 0, 0) + QRgb(m_names.size() + 1);
    m_names.insert(color, name);
    m_brushes.insert(name, QBrush(QColor(color)));
}
