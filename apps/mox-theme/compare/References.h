#pragma once

#include <QtCore/QMap>
#include <QtCore/QStringList>

class QDomDocument;

/// What theme files refer to, which the library's readers resolve and forget.
namespace TARN::ThemeTool {

/// What a brush is made of.
struct BrushReference
{
    QString text;       ///< "MainColor", or the points and stops of a gradient
    QStringList colors; ///< the names of its colours
};

/// Returns the references of the brushes in the configuration file \a document, by name.
QMap<QString, BrushReference> brushReferences(const QDomDocument &document);

/// Returns the texts of the entries of the palette file \a document, by role and group:
/// "Window/Active". Roles and groups have the names that the palette itself has for them.
QMap<QString, QString> paletteReferences(const QDomDocument &document);

/// Returns the name of an entry of the palette.
QString paletteEntry(int role, int group);

} // namespace TARN::ThemeTool
