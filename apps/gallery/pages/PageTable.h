#pragma once

#include <QtCore/QLatin1String>
#include <QtCore/QVector>

#include <functional>

class QWidget;

namespace TARN::Gallery {

/// One page of the gallery: a family of widgets in their states.
struct Page
{
    QLatin1String id; ///< unique; lower-case words joined by dashes
    QLatin1String title;
    QLatin1String family; ///< pages of one family stand next to each other
    /// Creates the page's contents, which the caller owns. Needs the application object.
    std::function<QWidget *()> create;
};

/// Returns all pages, in the order in which they are listed.
const QVector<Page> &pages();

} // namespace TARN::Gallery
