#pragma once

#include <style/BaseStyle.h>

#include <QtCore/QRect>
#include <QtCore/QStringList>
#include <QtGui/QImage>
#include <QtWidgets/QProxyStyle>
#include <QtWidgets/QStyleOption>

#include <functional>
#include <vector>

/// What reached the proxy of the style while something was painted.
struct PaintCall
{
    QString element; ///< say "PE_PanelMenu", "drawItemText" or "drawItemPixmap"
    QRect rect;
    QStyle::State state;
    QString text; ///< of item texts
};

/// A proxy over the theme's style that paints through it and records what the style hands to its
/// proxy.
class CallRecorder : public QProxyStyle
{
public:
    CallRecorder();

    const TARN::BaseStyle &style() const { return *m_style; }

    /// Return the picture of \a size, filled with \a ground, on which the element was painted. The
    /// calls that arrived in the meantime are in calls(); the first one is not the element itself.
    QImage picture(PrimitiveElement element, const QStyleOption &option, const QWidget *widget,
                   const QSize &size, const QColor &ground = Qt::black);
    QImage picture(ControlElement element, const QStyleOption &option, const QWidget *widget,
                   const QSize &size, const QColor &ground = Qt::black);
    QImage picture(ComplexControl control, const QStyleOptionComplex &option, const QWidget *widget,
                   const QSize &size, const QColor &ground = Qt::black);

    const std::vector<PaintCall> &calls() const { return m_calls; }
    /// Returns the elements of all calls, in order.
    QStringList elements() const;
    /// Returns the first call of \a element; one without an element when there is none.
    PaintCall call(const char *element) const;

    /// A call of an element of this name is recorded but not painted any further.
    void stopAt(const char *element);

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget = nullptr) const override;
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget = nullptr) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                            QPainter *painter, const QWidget *widget = nullptr) const override;
    void drawItemText(QPainter *painter, const QRect &rect, int flags, const QPalette &palette,
                      bool enabled, const QString &text,
                      QPalette::ColorRole textRole = QPalette::NoRole) const override;
    void drawItemPixmap(QPainter *painter, const QRect &rect, int alignment,
                        const QPixmap &pixmap) const override;

private:
    QImage record(const QSize &size, const QColor &ground,
                  const std::function<void(QPainter *)> &paint);
    bool keep(const char *element, const QStyleOption *option) const;

    TARN::BaseStyle *m_style;
    QStringList m_stops;
    mutable std::vector<PaintCall> m_calls;
};
