#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

namespace TARN {

/// Returns why the SVG file with \a content, which may be compressed, must not be rendered: it has
/// the renderer read other files, or is too large. An empty text when nothing speaks against it.
///
/// A link to a file is followed to wherever it leads, and reading what is no file may never end.
/// What is no well-formed SVG is let pass, since the renderer stops at the same place as this.
QString drawingFault(const QByteArray &content);

} // namespace TARN
