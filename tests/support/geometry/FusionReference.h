#pragma once

#include <style/BaseStyle.h>

#include <QtCore/QMap>
#include <QtWidgets/QStyleOption>

/// What the theme's style starts from: "fusion" with the theme's metrics, hints and icons. What an
/// element that the theme places or measures itself contributes to another is the theme's too, so
/// that this style answers every other element just as the theme's style must.
class FusionReference : public QProxyStyle
{
public:
    FusionReference();

    /// \name What the theme's style answers of its own accord
    /// \{
    static bool isOwn(SubElement element);
    static bool isOwn(ComplexControl control);
    static bool isOwn(ContentsType type);
    /// \}

    int pixelMetric(PixelMetric metric, const QStyleOption *option = nullptr,
                    const QWidget *widget = nullptr) const override;
    int styleHint(StyleHint hint, const QStyleOption *option = nullptr,
                  const QWidget *widget = nullptr,
                  QStyleHintReturn *returnData = nullptr) const override;
    QRect subElementRect(SubElement element, const QStyleOption *option,
                         const QWidget *widget) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex *option, SubControl sc,
                         const QWidget *widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &contents,
                           const QWidget *widget) const override;

    QIcon standardIcon(StandardPixmap sp, const QStyleOption *option = nullptr,
                       const QWidget *widget = nullptr) const override;

    /// \name The answers of "fusion", also for what the theme's style answers of its own accord
    /// \{
    int fusionMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const;
    QRect fusionRect(SubElement element, const QStyleOption &option, const QWidget *widget) const;
    QRect fusionRect(ComplexControl control, const QStyleOptionComplex &option, SubControl sc,
                     const QWidget *widget) const;
    QSize fusionSize(ContentsType type, const QStyleOption &option, const QSize &contents,
                     const QWidget *widget) const;
    /// \}

private:
    TARN::BaseStyle m_style;
};

/// A style that changes metrics and hints of another, of the theme's if none is given.
class ChangedStyle : public QProxyStyle
{
public:
    explicit ChangedStyle(QMap<int, int> metrics, QMap<int, int> hints = {},
                          QStyle *style = new TARN::BaseStyle);

    void setMetric(int metric, int value) { m_metrics[metric] = value; }

    int pixelMetric(PixelMetric metric, const QStyleOption *option = nullptr,
                    const QWidget *widget = nullptr) const override;
    int styleHint(StyleHint hint, const QStyleOption *option = nullptr,
                  const QWidget *widget = nullptr,
                  QStyleHintReturn *returnData = nullptr) const override;

private:
    QMap<int, int> m_metrics;
    QMap<int, int> m_hints;
};

inline constexpr Qt::LayoutDirection bothDirections[] = {Qt::LeftToRight, Qt::RightToLeft};

/// Every sub-control of any control is one of these.
constexpr QStyle::SubControl subControlBits[] = {
    QStyle::SubControl(0x1),  QStyle::SubControl(0x2),  QStyle::SubControl(0x4),
    QStyle::SubControl(0x8),  QStyle::SubControl(0x10), QStyle::SubControl(0x20),
    QStyle::SubControl(0x40), QStyle::SubControl(0x80), QStyle::SubControl(0x100),
};

/// Compares what the theme's style answers for every part of \a control with "fusion".
void compareWithFusion(QStyle::ComplexControl control, const QStyleOptionComplex &option,
                       const QWidget *widget);

/// Compares the size that the theme's style gives to \a contents with that of "fusion".
void compareWithFusion(QStyle::ContentsType type, const QStyleOption &option, const QSize &contents,
                       const QWidget *widget);

/// Returns a button option with what \a option has in common with it.
QStyleOptionButton buttonOption(const QStyleOption &option);
