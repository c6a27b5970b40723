#include "pages/KindSample.h"

#include "samples/Literals.h"

#include <catalogue/Words.h>
#include <common_utils/Helpers.h>
#include <resources/ThemeResources.h>

#include <QtGui/QPainter>

namespace TARN::Gallery {

namespace {

constexpr int TextMargin = 8;

QString sampleText()
{
    return "Text"_s;
}

} // namespace

KindSample::KindSample(const QString &stem, const QString &twin, Qt::Alignment textAlignment)
    : m_stem(stem)
    , m_twin(twin)
    , m_textAlignment(textAlignment)
{
    setObjectName(brushName(Words::background));
    setToolTip(brushName(Words::background) + u'\n' + brushName(Words::border) + u'\n' +
               brushName(Words::foreground));
}

QSize KindSample::minimumSizeHint() const
{
    return {fontMetrics().horizontalAdvance(sampleText()) + 2 * TextMargin, fontMetrics().height()};
}

QString KindSample::brushName(QLatin1String field) const
{
    return m_stem + field + "Brush"_s + m_twin;
}

void KindSample::paintEvent(QPaintEvent * /*event*/)
{
    // Asked for anew each time, so that the sample follows the theme.
    const auto brush = [this](QLatin1String field) {
        return ThemeResources::getBrush(brushName(field));
    };
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(brush(Words::background));
    painter.setPen(QPen(brush(Words::border), 1));
    Helpers::drawRoundedRectShape(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5),
                                  qRound(ThemeResources::getCornerRadius("BaseSize"_s)),
                                  Helpers::NoStraightCorner, &painter);
    painter.setPen(QPen(brush(Words::foreground), 1));
    painter.drawText(rect().adjusted(TextMargin, 0, -TextMargin, 0), int(m_textAlignment),
                     sampleText());
}

} // namespace TARN::Gallery
