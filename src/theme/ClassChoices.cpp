#include "theme/ClassChoices.h"

#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

namespace TARN {

ClassChoices ClassChoices::made()
{
    ClassChoices choices;
    const QFont applicationFont = QApplication::font();
    const QPalette applicationPalette = QApplication::palette();
    const QWidgetList widgets = QApplication::allWidgets();
    for (const QWidget *widget : widgets) {
        for (const QMetaObject *type = widget->metaObject(); type; type = type->superClass()) {
            const QFont font = QApplication::font(type->className());
            if (!font.isCopyOf(applicationFont)) {
                choices.m_fonts.insert(type->className(), font);
            }
            const QPalette palette = QApplication::palette(type->className());
            if (!palette.isCopyOf(applicationPalette)) {
                choices.m_palettes.insert(type->className(), palette);
            }
        }
    }
    return choices;
}

void ClassChoices::forgetFont(const char *name, const QFont &font)
{
    if (m_fonts.value(name) == font) {
        m_fonts.remove(name);
    }
}

void ClassChoices::makeFontsAgain() const
{
    for (auto it = m_fonts.cbegin(); it != m_fonts.cend(); ++it) {
        QApplication::setFont(it.value(), it.key().constData());
    }
}

void ClassChoices::makePalettesAgain() const
{
    for (auto it = m_palettes.cbegin(); it != m_palettes.cend(); ++it) {
        QApplication::setPalette(it.value(), it.key().constData());
    }
}

} // namespace TARN
