#pragma once

#include <QtGui/QBrush>
#include <QtGui/QIcon>
#include <QtGui/QIconEngine>

#include <array>
#include <optional>

namespace TARN {

struct Originals;

/// Shows another icon with one of its colours replaced by a brush.
///
/// The other icon is rendered at the very size that is asked for. Where it has no picture of its
/// own for a mode, its normal picture is tinted before the application's style gives it the look
/// of that mode.
///
/// What is rendered goes through the TintedIconCache. An icon of an application's own engine may
/// show something else by now: it is asked each time, and tinted anew when its picture has changed.
class TintedIconEngine : public QIconEngine
{
public:
    /// When \a disabled is true, \a to is the brush of a disabled icon, and the style's disabled
    /// look is not applied on top of it. The alpha of \a from is ignored.
    TintedIconEngine(QIcon source, QRgb from, const QBrush &to, bool disabled);

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override;
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override;
    QSize actualSize(const QSize &size, QIcon::Mode mode, QIcon::State state) override;

    /// Adds to the source: what is added is tinted as well.
    void addPixmap(const QPixmap &pixmap, QIcon::Mode mode, QIcon::State state) override;
    void addFile(const QString &fileName, const QSize &size, QIcon::Mode mode,
                 QIcon::State state) override;

    QIconEngine *clone() const override;

    /// A tinted icon is streamed as an icon of plain pictures: brush and source need not exist
    /// where it is read.
    QString key() const override;
    bool write(QDataStream &stream) const override;

    void virtual_hook(int id, void *data) override;

protected:
    TintedIconEngine(const TintedIconEngine &other) = default;

private:
    /// One picture that is asked for; \a size is in pixels.
    struct Request
    {
        QSize size;
        qreal scale;
        QIcon::Mode mode;
        QIcon::State state;
    };

    QPixmap picture(const Request &request) const;
    bool isSteady() const;
    bool isKnownToChange() const { return m_isSteady && !*m_isSteady; }
    Originals originals(const Request &request) const;
    QPixmap rendered(const Request &request) const;
    bool isDerived(const Request &request) const;
    bool findOutIfDerived(const Request &request) const;
    void sourceChanged();

    QIcon m_source;
    QRgb m_from;
    QBrush m_to;
    bool m_disabled;
    quint64 m_serial;
    /// Whether the source always shows the same; no value for what was not found out yet.
    mutable std::optional<bool> m_isSteady;
    /// Whether the source derives the picture of a mode and state; no value for what was not
    /// asked for yet.
    mutable std::array<std::optional<bool>, 8> m_derived;
};

} // namespace TARN
