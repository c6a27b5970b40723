#pragma once

#include <QtGui/QRegion>

class QString;
class QWidget;

/// Returns where the \a window that shows the page \a id may look otherwise in the complete mode
/// than by default, on purpose.
QRegion permittedDifferences(const QString &id, const QWidget &window);
