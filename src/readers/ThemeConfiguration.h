#pragma once

#include "readers/ThemeFont.h"
#include "readers/xml/XmlFile.h"

#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtGui/QBrush>
#include <QtGui/QColor>

#include <functional>

namespace TARN {

/// What the configuration file of a theme says, and the disabled variants that follow from it. See
/// ThemeConfigurationReader for what each map holds.
struct ThemeConfiguration
{
    ReaderStatus status = ReadFine;
    QMap<QString, QColor> colors;
    QMap<QString, QColor> internalColors;
    QMap<QString, QBrush> brushes;
    QMap<QString, QBrush> internalBrushes;
    QMap<QString, double> opacities;
    QMap<QString, int> cornerRadii;
    QMap<QString, int> disabledFactors;
    ThemeFont font;
};

/// Returns the disabled variant of a colour, which may be that of a text or an icon.
using DisableColor = std::function<QColor(const QColor &color, bool foreground)>;

/// Chooses how colours are disabled, by the disabled factors that a file defines.
using ChooseDisabling = std::function<DisableColor(const QMap<QString, int> &factors)>;

/// Returns the disabling by \a factors themselves.
DisableColor disablingBy(const QMap<QString, int> &factors);

/// Reads the configuration file at \a path and nothing else: neither does the result depend on what
/// is published, nor is anything published. Never fails; the status tells how it went.
///
/// \a chooseDisabling is asked once for a well-formed file, after its factors have been read and
/// before any colour is disabled. The sizes of the font that the file leaves out are \a
/// defaultFont.
ThemeConfiguration readConfiguration(const QString &path,
                                     const ChooseDisabling &chooseDisabling = disablingBy,
                                     const QFont &defaultFont = QFont());

} // namespace TARN
