#pragma once

#include "style/asking/Mode.h"

#include <QtGui/QIcon>
#include <QtGui/QPalette>
#include <QtGui/QPixmap>
#include <QtWidgets/QStyle>

#include <optional>

namespace TARN {

/// Returns the theme's icon for \a pixmap; nothing when the base style's is to hold. For
/// SP_CustomBase that is the icon which the property "highlightedIcon" of \a widget names, in the
/// theme's main colour. What is drawn in text colours takes them from \a palette.
std::optional<QIcon> standardIconOf(QStyle::StandardPixmap pixmap, const QStyleOption *option,
                                    const QWidget *widget, const QPalette &palette, Mode mode);

/// Returns the theme's picture for \a pixmap; nothing when the base style's is to hold.
std::optional<QPixmap> standardPixmapOf(QStyle::StandardPixmap pixmap, Mode mode);

/// Dims the disabled picture of a label; returns any other \a pixmap as it is.
QPixmap generatedPixmap(QIcon::Mode mode, const QPixmap &pixmap, const QStyleOption *option);

/// Returns the icon that \a xpm shows in the text colours of \a palette.
QIcon toolBarExtensionIcon(const char *const *xpm, const QPalette &palette);

} // namespace TARN
