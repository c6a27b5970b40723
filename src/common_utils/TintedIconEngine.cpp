#include "common_utils/TintedIconEngine.h"

#include "common_utils/Helpers.h"
#include "common_utils/ReplacedColor.h"
#include "common_utils/SteadyIcon.h"
#include "common_utils/TintedIconCache.h"

#include <QtCore/QDataStream>
#include <QtGui/QPainter>
#include <QtWidgets/QApplication>
#include <QtWidgets/QStyleOption>

#include <utility>

namespace TARN {

namespace {

/// The largest picture that a source is asked for: a scalable one would otherwise take any amount
/// of memory.
constexpr QSize largestPicture(4096, 4096);

/// Has icons talk in pixels for as long as it lives: sizes are not multiplied by the device pixel
/// ratio of the application.
class PixelSizes
{
public:
    PixelSizes()
        : m_former(QCoreApplication::testAttribute(Qt::AA_UseHighDpiPixmaps))
    {
        QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps, false);
    }
    PixelSizes(const PixelSizes &) = delete;
    PixelSizes &operator=(const PixelSizes &) = delete;
    ~PixelSizes() { QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps, m_former); }

private:
    bool m_former;
};

quint64 nextSerial()
{
    static quint64 last = 0;
    return ++last;
}

/// Returns a picture of \a icon that is at most \a size pixels large.
QPixmap sourcePicture(const QIcon &icon, const QSize &size, qreal scale, QIcon::Mode mode,
                      QIcon::State state)
{
    // Asked as by a widget, an icon theme gives the artwork that it has for high resolutions.
    const QSize independentSize = size / scale;
    const bool likeWidget = scale > 1 &&
                            QCoreApplication::testAttribute(Qt::AA_UseHighDpiPixmaps) &&
                            scale == qApp->devicePixelRatio() && independentSize * scale == size;
    QPixmap picture;
    if (likeWidget) {
        picture = icon.pixmap(independentSize, mode, state);
    } else {
        const PixelSizes pixelSizes;
        picture = icon.pixmap(size, mode, state);
    }
    picture.setDevicePixelRatio(1);
    return picture;
}

/// Returns what the application's style makes of \a picture in \a mode.
QPixmap withEffect(QIcon::Mode mode, const QPixmap &picture)
{
    if (mode == QIcon::Normal || picture.isNull() ||
        qobject_cast<QApplication *>(QCoreApplication::instance()) == nullptr) {
        return picture;
    }
    QStyleOption option(0);
    option.palette = QGuiApplication::palette();
    const QPixmap result = QApplication::style()->generatedIconPixmap(mode, picture, &option);
    return result.isNull() ? picture : result;
}

QImage pixelsOf(const QPixmap &picture)
{
    return picture.toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

} // namespace

TintedIconEngine::TintedIconEngine(QIcon source, QRgb from, const QBrush &to, bool disabled)
    : m_source(std::move(source))
    , m_from(from)
    , m_to(to)
    , m_disabled(disabled)
    , m_serial(nextSerial())
{
}

void TintedIconEngine::paint(QPainter *painter, const QRect &rect, QIcon::Mode mode,
                             QIcon::State state)
{
    if (painter == nullptr || rect.isEmpty()) {
        return;
    }
    const QPaintDevice *device = painter->device();
    const qreal scale = device != nullptr ? device->devicePixelRatioF() : 1;
    painter->drawPixmap(rect, picture({rect.size() * scale, scale, mode, state}));
}

QPixmap TintedIconEngine::pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state)
{
    return picture({size, 1, mode, state});
}

QSize TintedIconEngine::actualSize(const QSize &size, QIcon::Mode mode, QIcon::State state)
{
    if (size.isEmpty()) {
        return {};
    }
    const PictureKey key{m_serial, size, 1, mode, state, 0};
    const QSize *kept = TintedIconCache::current().actualSize(key);
    if (kept && isSteady()) {
        return *kept;
    }
    const PixelSizes pixelSizes;
    const QSize asked = size.boundedTo(largestPicture);
    QSize actual = m_source.actualSize(asked, mode, state);
    // What fills the largest picture is taken to be scalable.
    const bool isCut =
        asked != size && (actual.width() == asked.width() || actual.height() == asked.height());
    if (isCut) {
        actual.scale(size, Qt::KeepAspectRatio);
    }
    TintedIconCache::current().keepActualSize(key, actual);
    return actual;
}

void TintedIconEngine::addPixmap(const QPixmap &pixmap, QIcon::Mode mode, QIcon::State state)
{
    m_source.addPixmap(pixmap, mode, state);
    sourceChanged();
}

void TintedIconEngine::addFile(const QString &fileName, const QSize &size, QIcon::Mode mode,
                               QIcon::State state)
{
    m_source.addFile(fileName, size, mode, state);
    sourceChanged();
}

void TintedIconEngine::sourceChanged()
{
    m_serial = nextSerial();
    m_isSteady.reset();
    m_derived = {};
}

QIconEngine *TintedIconEngine::clone() const
{
    return new TintedIconEngine(*this);
}

QString TintedIconEngine::key() const
{
    return QStringLiteral("QPixmapIconEngine");
}

/// Writes what the toolkit's engine of that key reads: a count and, for each picture, the pixmap,
/// its file name, its size, its mode and its state.
bool TintedIconEngine::write(QDataStream &stream) const
{
    if (EngineProbe *probe = EngineProbe::of(stream)) {
        probe->answer(isSteady());
        return true;
    }
    QList<QSize> sizes = m_source.availableSizes();
    if (sizes.isEmpty()) {
        sizes = {{16, 16}, {24, 24}, {32, 32}, {64, 64}};
    }
    constexpr std::array modes{QIcon::Normal, QIcon::Disabled, QIcon::Active, QIcon::Selected};
    constexpr std::array states{QIcon::Off, QIcon::On};
    stream << int(sizes.size() * modes.size() * states.size());
    for (const QSize &size : qAsConst(sizes)) {
        for (const QIcon::Mode mode : modes) {
            for (const QIcon::State state : states) {
                const QPixmap pixmap = picture({size, 1, mode, state});
                stream << pixmap << QString() << pixmap.size() << uint(mode) << uint(state);
            }
        }
    }
    return true;
}

void TintedIconEngine::virtual_hook(int id, void *data)
{
    switch (id) {
    case AvailableSizesHook: {
        auto *argument = static_cast<AvailableSizesArgument *>(data);
        argument->sizes = m_source.availableSizes(argument->mode, argument->state);
        break;
    }
    case IconNameHook:
        *static_cast<QString *>(data) = m_source.name();
        break;
    case IsNullHook:
        *static_cast<bool *>(data) = m_source.isNull();
        break;
    case ScaledPixmapHook: {
        auto *argument = static_cast<ScaledPixmapArgument *>(data);
        argument->pixmap =
            picture({argument->size, argument->scale, argument->mode, argument->state});
        break;
    }
    default:
        QIconEngine::virtual_hook(id, data);
    }
}

QPixmap TintedIconEngine::picture(const Request &request) const
{
    if (request.size.isEmpty()) {
        return {};
    }
    const qint64 palette =
        request.mode == QIcon::Normal ? 0 : QGuiApplication::palette().cacheKey();
    const PictureKey key{m_serial,     request.size,  request.scale,
                         request.mode, request.state, palette};
    const KeptPicture *kept = TintedIconCache::current().picture(key);
    if (kept && isSteady()) {
        return kept->picture;
    }
    const Request bounded{request.size.boundedTo(largestPicture), request.scale, request.mode,
                          request.state};
    const Originals current = isKnownToChange() ? originals(bounded) : Originals();
    // Another tinted icon may have been asked meanwhile.
    kept = TintedIconCache::current().picture(key);
    if (kept && kept->originals == current) {
        return kept->picture;
    }
    QPixmap result = rendered(bounded);
    // The icon sets this ratio on what it hands out, which copies a pixmap that has another one.
    result.setDevicePixelRatio(request.scale);
    TintedIconCache::current().keepPicture(key, {result, current});
    return result;
}

/// Finding that out takes about as long as rendering, and is left until it is of use.
bool TintedIconEngine::isSteady() const
{
    if (!m_isSteady) {
        m_isSteady = isSteadyIcon(m_source);
    }
    return *m_isSteady;
}

Originals TintedIconEngine::originals(const Request &request) const
{
    const auto pictureIn = [&](QIcon::Mode mode) {
        return sourcePicture(m_source, request.size, request.scale, mode, request.state);
    };
    const bool isNormal = request.mode == QIcon::Normal;
    return {pictureIn(request.mode), isNormal ? QPixmap() : pictureIn(QIcon::Normal)};
}

QPixmap TintedIconEngine::rendered(const Request &request) const
{
    const bool derived = isDerived(request);
    const QPixmap original = sourcePicture(m_source, request.size, request.scale,
                                           derived ? QIcon::Normal : request.mode, request.state);
    if (original.isNull()) {
        return {};
    }
    const QImage replacement = ReplacedColor::filledPicture(m_to, original.size(), request.scale);
    const QPixmap result =
        QPixmap::fromImage(ReplacedColor::replacedColor(original.toImage(), m_from, replacement));
    const bool isFinished = !derived || (m_disabled && request.mode == QIcon::Disabled);
    return isFinished ? result : withEffect(request.mode, result);
}

bool TintedIconEngine::isDerived(const Request &request) const
{
    if (request.mode == QIcon::Normal) {
        return true;
    }
    std::optional<bool> &known = m_derived[size_t(request.mode) * 2 + size_t(request.state)];
    if (!known || isKnownToChange()) {
        known = findOutIfDerived(request);
    }
    return *known;
}

bool TintedIconEngine::findOutIfDerived(const Request &request) const
{
    // An engine that lists its pictures by mode has said it all.
    const bool hasNone = m_source.availableSizes(request.mode, QIcon::Off).isEmpty() &&
                         m_source.availableSizes(request.mode, QIcon::On).isEmpty();
    if (hasNone && !m_source.availableSizes(QIcon::Normal, request.state).isEmpty()) {
        return true;
    }
    const auto showsEffect = [&](const QIcon &icon) {
        const auto pictureIn = [&](QIcon::Mode mode) {
            return sourcePicture(icon, request.size, request.scale, mode, request.state);
        };
        return pixelsOf(pictureIn(request.mode)) ==
               pixelsOf(withEffect(request.mode, pictureIn(QIcon::Normal)));
    };
    if (showsEffect(m_source)) {
        return true;
    }
    // Engines keep what they have rendered, even when the style changes; a copy renders anew.
    QIcon copy = m_source;
    copy.detach();
    return showsEffect(copy);
}

namespace Helpers {

// The signature is what applications are built against.
// NOLINTNEXTLINE(performance-unnecessary-value-param)
QIcon getModifiedIconWithForegroundBrush(QIcon icon, QBrush from, QBrush to, bool disabled)
{
    const bool isOneColor = from.style() != Qt::NoBrush && from.gradient() == nullptr &&
                            from.style() != Qt::TexturePattern;
    if (icon.isNull() || !isOneColor || to.style() == Qt::NoBrush) {
        return icon;
    }
    // Styles ask for the same tinted icons again on every paint.
    const TintKey key{icon.cacheKey(), from.color().rgb(), to, disabled};
    if (const QIcon *kept = TintedIconCache::current().icon(key)) {
        return *kept;
    }
    QIcon result(new TintedIconEngine(icon, key.from, to, disabled));
    TintedIconCache::current().keepIcon(key, result);
    return result;
}

} // namespace Helpers

} // namespace TARN
