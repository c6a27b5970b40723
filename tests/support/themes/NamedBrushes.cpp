#include "support/themes/NamedBrushes.h"

#include <QtCore/QStringList>

#include <support/Text.h>
#include <support/Variables.h>

NamedBrushes::NamedBrushes()
{
    const QStringList states{text("Checked"), text("Unchecked"), text("Default")};
    const QStringList kinds{QString(), text("Highlighted"), text("Primary"), text("Borea")};
    for (const QString &state : states) {
        for (const char *suffix : {"", "Pressed", "Hover"}) {
            for (const QString &kind : kinds) {
                addButton(kind + state + text(suffix));
            }
        }
    }
    for (const char *name : {"MainBrush", "CardBorderBrush", "ForegroundBrush"}) {
        add(text(name));
    }
    publishVariables({{text("brushes"), m_brushes}});
}

QString NamedBrushes::nameOf(const QBrush &brush) const
{
    return brush.style() == Qt::NoBrush ? text("none") : m_names.value(brush.color().rgb());
}

void NamedBrushes::addButton(const QString &kindAndState)
{
    for (const char *prefix : {"Button", "ToggleButton", "Input"}) {
        for (const char *field : {"BackgroundBrush", "BorderBrush", "ForegroundBrush"}) {
            add(text(prefix) + kindAndState + text(field));
        }
    }
}

void NamedBrushes::add(const QString &name)
{
    for (const QString &variant : {name, name + text("Disabled")}) {
        const QRgb color = qRgb(0, 0, 0) + QRgb(m_names.size() + 1);
        m_names.insert(color, variant);
        m_brushes.insert(variant, QBrush(QColor(color)));
    }
}
