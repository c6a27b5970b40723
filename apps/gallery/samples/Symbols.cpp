#include "samples/Symbols.h"

#include "samples/Literals.h"

#include <resources/ThemeResources.h>

#include <QtGui/QGuiApplication>
#include <QtGui/QIconEngine>
#include <QtGui/QImageReader>
#include <QtGui/QPainter>
#include <QtGui/QPalette>

#include <utility>

namespace TARN::Gallery {

namespace {

QColor symbolColor(QIcon::Mode mode)
{
    const QPalette palette = QGuiApplication::palette();
    switch (mode) {
    case QIcon::Disabled:
        return palette.color(QPalette::Disabled, QPalette::ButtonText);
    case QIcon::Selected:
        return palette.color(QPalette::Active, QPalette::HighlightedText);
    case QIcon::Normal:
    case QIcon::Active:
        break;
    }
    return palette.color(QPalette::Active, QPalette::ButtonText);
}

// Colours a drawing anew for each picture, so that icons that widgets took before a switch of
// themes follow it.
class SymbolEngine : public QIconEngine
{
public:
    explicit SymbolEngine(QString path)
        : m_path(std::move(path))
    {
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State /*state*/) override
    {
        QImageReader reader(m_path);
        reader.setScaledSize(size);
        QImage image = reader.read();
        if (image.isNull()) {
            return {};
        }
        image = image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
        QPainter painter(&image);
        painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
        painter.fillRect(image.rect(), symbolColor(mode));
        painter.end();
        return QPixmap::fromImage(image);
    }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override
    {
        const qreal ratio = painter->device()->devicePixelRatioF();
        painter->drawPixmap(rect, pixmap(rect.size() * ratio, mode, state));
    }

    [[nodiscard]] QIconEngine *clone() const override { return new SymbolEngine(m_path); }

private:
    QString m_path;
};

} // namespace

QIcon symbol(const QString &name)
{
    // Looked for anew for each picture: a theme may have an icon of that name itself.
    return QIcon(
        new SymbolEngine(ThemeResources::iconsPrefix() + QLatin1Char(':') + name + ".svg"_s));
}

} // namespace TARN::Gallery
