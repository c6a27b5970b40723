#include "Styles.h"

#include <readers/QPaletteReader.h>
#include <readers/ThemeConfigurationReader.h>
#include <resources/ThemeColorHelper.h>
#include <style/BaseStyle.h>
#include <theme/BaseTheme.h>

#include <QtCore/QDir>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>
#include <QtCore/QPluginLoader>
#include <QtGui/QFontDatabase>
#include <QtWidgets/QApplication>
#include <QtWidgets/QStyleFactory>

namespace {

const QString themeDirectory = QStringLiteral(MOX_SHIPPED_THEMES "/Dark");

class PaintlessStyle : public TARN::BaseStyle
{
public:
    void drawPrimitive(PrimitiveElement /*element*/, const QStyleOption * /*option*/,
                       QPainter * /*painter*/, const QWidget * /*widget*/) const override
    {
    }
    void drawControl(ControlElement /*element*/, const QStyleOption * /*option*/,
                     QPainter * /*painter*/, const QWidget * /*widget*/) const override
    {
    }
    void drawComplexControl(ComplexControl /*control*/, const QStyleOptionComplex * /*option*/,
                            QPainter * /*painter*/, const QWidget * /*widget*/) const override
    {
    }
    void drawItemText(QPainter * /*painter*/, const QRect & /*rectangle*/, int /*alignment*/,
                      const QPalette & /*palette*/, bool /*enabled*/, const QString & /*text*/,
                      QPalette::ColorRole /*role*/) const override
    {
    }
    void drawItemPixmap(QPainter * /*painter*/, const QRect & /*rectangle*/, int /*alignment*/,
                        const QPixmap & /*pixmap*/) const override
    {
    }
};

/// Has themes that are applied from now on bring the complete mode.
void chooseCompleteMode()
{
    qApp->setProperty("appCompleteTheming", true);
}

/// Returns whether the theme is there: one that is not applies nothing.
bool applyTheme()
{
    TARN::BaseTheme theme(themeDirectory);
    theme.customize(qApp);
    return !theme.getName().isEmpty();
}

bool applyPaintlessTheme()
{
    const bool isApplied = applyTheme();
    auto *style = new PaintlessStyle;
    style->setPalette(QApplication::palette());
    QApplication::setStyle(style);
    return isApplied;
}

QString darkStyleSheet()
{
    QFile file(QStringLiteral(MOX_DARK_STYLE_SHEET));
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("The benchmark's stylesheet cannot be read");
    }
    return QString::fromUtf8(file.readAll());
}

bool usePlainStyle(const QString &key, const Look &look)
{
    QStyle *style = QStyleFactory::create(key);
    if (!style) {
        return false;
    }
    QApplication::setStyle(style);
    QApplication::setPalette(look.palette);
    QApplication::setFont(look.font);
    return true;
}

/// Returns the first key of a plugin, nothing when the file is none.
QString firstKey(const QString &pluginPath)
{
    const QJsonObject metaData = QPluginLoader(pluginPath).metaData();
    return metaData[QLatin1String("MetaData")][QLatin1String("Keys")][0].toString();
}

} // namespace

QStringList installedStyles()
{
    QStringList keys;
    const QStringList folders = QCoreApplication::libraryPaths();
    for (const QString &folder : folders) {
        const QDir styles(folder + QLatin1String("/styles"));
        const QStringList files = styles.entryList(QDir::Files, QDir::Name);
        for (const QString &file : files) {
            keys.append(firstKey(styles.filePath(file)));
        }
    }
    keys.removeAll(QString());
    keys.removeDuplicates();
    return keys;
}

Look themeLook()
{
    const TARN::ThemeConfigurationReader values(themeDirectory + QLatin1String("/config.xml"));
    const TARN::QPaletteReader reader(themeDirectory + QLatin1String("/qpaletteMapping.xml"),
                                      values.getBrushesMap(), values.getColorsMap(),
                                      QApplication::palette());
    QPalette palette = reader.deserialize();
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role,
                         TARN::ThemeColorHelper::disabled(palette.color(role), true));
    }
    return {palette, values.getFont().getFont(TARN::ThemeFont::Base)};
}

bool bringsThemeLook(const QString &styleName)
{
    return styleName == StyleNames::theme || styleName == StyleNames::complete ||
           styleName == StyleNames::nothing;
}

void registerThemeFonts()
{
    const QDir fonts(themeDirectory + QLatin1String("/Fonts"));
    const QStringList files = fonts.entryList({QStringLiteral("*.ttf")}, QDir::Files);
    for (const QString &file : files) {
        QFontDatabase::addApplicationFont(fonts.filePath(file));
    }
}

bool useStyle(const QString &styleName, const Look &look)
{
    if (styleName == StyleNames::theme) {
        return applyTheme();
    }
    if (styleName == StyleNames::complete) {
        chooseCompleteMode();
        return applyTheme();
    }
    if (styleName == StyleNames::nothing) {
        return applyPaintlessTheme();
    }
    if (styleName == StyleNames::styleSheet) {
        qApp->setStyleSheet(darkStyleSheet());
        return usePlainStyle(StyleNames::fusion, look);
    }
    return usePlainStyle(styleName, look);
}
