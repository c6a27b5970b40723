#pragma once

#include <QtCore/QVector>
#include <QtGui/QImage>

namespace TARN::ThemeTool {

/// One picture of all pages of the gallery, in the theme that the application has.
class ContactSheet
{
public:
    /// Makes the sheet, with \a heading above the pages.
    explicit ContactSheet(const QString &heading);

    QImage image() const { return m_image; }

    /// Returns where on the image the page at \a index of the page table stands, its title aside.
    QRect pageArea(int index) const { return m_pageAreas.at(index); }

private:
    QImage m_image;
    QVector<QRect> m_pageAreas;
};

} // namespace TARN::ThemeTool
