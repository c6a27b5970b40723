#include "SmallTheme.h"

#include <QtCore/QDir>
#include <QtCore/QDirIterator>
#include <QtCore/QFile>

#include <support/Text.h>

TARN::ThemeTool::ThemeDefinition smallTheme()
{
    TARN::ThemeTool::ThemeDefinition theme;
    theme.name = text("Small");
    theme.description = text("A few values.");
    theme.colors = {{text("The accent."),
                     {{text("MainColor"), QColor(0x12, 0x34, 0x56)},
                      {text("MainColorDisabled"), QColor(0x65, 0x43, 0x21)}}},
                    {text(R"(What is "seen" through.)"),
                     {{text("TintColor"), QColor(0xAB, 0xCD, 0xEF, 0x80)},
                      {text("ClearColor"), Qt::transparent},
                      {text("ClearRedColor"), QColor(0xFF, 0, 0, 0)}}}};
    theme.brushes = {{text("The accent."),
                      {{text("MainBrush"), text("MainColor")},
                       {text("MainBrushDisabled"), text("MainColorDisabled")}}},
                     {QString(), {{text("TintBrush"), text("TintColor")}}}};
    theme.palette = {{text("Surfaces."), {{text("Window"), text("All"), text("MainColor")}}},
                     {text("Selection."),
                      {{text("Mid"), text("All"), text("MainColor")},
                       {text("Mid"), text("Inactive"), text("TintColor")},
                       {text("Link"), text("All"), text("MainColorDisabled")}}}};
    theme.factors = {{text("LightForegroundDisableFactor"), 160},
                     {text("DarkBackgroundDisableFactor"), 104}};
    theme.opacities = {{text("RubberBandOpacity"), 0.3}};
    theme.font.family = text("DejaVu Sans");
    theme.font.weight = text("Bold");
    theme.font.sizes = {7, 8, 11, 13};
    theme.cornerRadii = {1, 3, 5, 9};
    return theme;
}

QMap<QString, QByteArray> filesBelow(const QString &folder)
{
    QMap<QString, QByteArray> files;
    QDirIterator entries(folder, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                         QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        QFile file(entries.next());
        const QString path = QDir(folder).relativeFilePath(file.fileName());
        files.insert(path, file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray());
    }
    return files;
}
