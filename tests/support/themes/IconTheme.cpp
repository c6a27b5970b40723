#include "support/themes/IconTheme.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtGui/QImage>
#include <QtGui/QPixmap>

#include <support/Text.h>

namespace {

constexpr int side = 16;

} // namespace

const QColor referenceForeground(0xe5, 0xee, 0xf4);

IconTheme::IconTheme()
    : m_formerPaths(QIcon::themeSearchPaths())
    , m_formerName(QIcon::themeName())
{
    QDir(m_directory.path()).mkpath(text("Squares/16"));
    QFile index(m_directory.filePath(text("Squares/index.theme")));
    if (!index.open(QIODevice::WriteOnly) ||
        index.write("[Icon Theme]\nName=Squares\nDirectories=16\n[16]\nSize=16\n") < 0) {
        qFatal("The test can't write an icon theme");
    }
    index.close();
    QIcon::setThemeSearchPaths({m_directory.path()});
    QIcon::setThemeName(text("Squares"));
}

IconTheme::~IconTheme()
{
    QIcon::setThemeSearchPaths(m_formerPaths);
    QIcon::setThemeName(m_formerName);
}

void IconTheme::add(const QString &name)
{
    add(name, QColor(0x80, 0x10, m_names.size() + 1));
}

void IconTheme::add(const QString &name, const QColor &color)
{
    QImage image(side, side, QImage::Format_ARGB32);
    image.fill(color);
    if (!image.save(m_directory.filePath(text("Squares/16/") + name + text(".png")))) {
        qFatal("The test can't write the icon %s", qPrintable(name));
    }
    m_names.insert(color.rgb(), name);
}

QString IconTheme::nameOf(const QIcon &icon) const
{
    return icon.isNull() ? QString() : m_names.value(colorOf(icon).rgb());
}

QColor colorOf(const QIcon &icon, QIcon::Mode mode)
{
    const QImage image = icon.pixmap(QSize(side, side), mode).toImage();
    return image.isNull() ? QColor() : image.pixelColor(image.rect().center());
}
